#include "app/exportproject/exportreport.h"

#include "model/plural.h"

#include <QCoreApplication>
#include <QDir>

using NextData::Recipe;
using NextData::RecipeRun;

namespace {

constexpr int MostFailures = 8; // that a message box shows

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExportReport)
};

/// Such as "3 files (12,288 bytes)".
QString filesText(int files, int bytes)
{
    return Texts::tr("%1 (%2)").arg(files == 1 ? Texts::tr("1 file") : Texts::tr("%Ln files", nullptr, files),
                                    bytes == 1 ? Texts::tr("1 byte") : Texts::tr("%Ln bytes", nullptr, bytes));
}

} // namespace

ExportReport::ExportReport(const Recipe &recipe, const QList<RecipeRun::Outcome> &outcomes, const QString &folder)
    : m_folder(folder)
    , m_stopped(outcomes.size() < recipe.outputs().size())
{
    for (qsizetype i = 0; i < outcomes.size(); ++i) {
        const RecipeRun::Outcome &outcome = outcomes[i];
        if (outcome.state == RecipeRun::State::Impossible)
            m_failures.append(Texts::tr("%1: %2").arg(recipe.outputs().at(i).file, outcome.reason));
        for (const RecipeRun::File &file : outcome.files) { // also of what failed half-way
            if (file.state == RecipeRun::State::Unchanged) {
                ++m_unchanged;
            } else {
                ++m_written;
                m_bytes += file.bytes;
            }
        }
    }
}

QString ExportReport::text() const
{
    const QString folder = QDir::toNativeSeparators(m_folder);
    if (m_written == 0 && m_failures.isEmpty() && !m_stopped) {
        return m_unchanged == 1
            ? Texts::tr("Nothing to export: 1 file is unchanged in %1").arg(folder)
            : Texts::tr("Nothing to export: %Ln files are unchanged in %1", nullptr, m_unchanged).arg(folder);
    }
    QString text = m_written > 0 ? Texts::tr("Exported %1").arg(filesText(m_written, plural(m_bytes)))
                                 : Texts::tr("Exported nothing");
    const bool isAll = m_unchanged == 0 && m_failures.isEmpty();
    if (m_unchanged > 0)
        text = Texts::tr("%1, %Ln unchanged", nullptr, m_unchanged).arg(text);
    if (!m_failures.isEmpty())
        text = Texts::tr("%1, %Ln failed", nullptr, plural(m_failures.size())).arg(text);
    text = (isAll ? Texts::tr("%1 to %2") : Texts::tr("%1, to %2")).arg(text, folder);
    return m_stopped ? Texts::tr("Stopped: %1").arg(text) : text;
}

QString ExportReport::failures() const
{
    QStringList shown = m_failures.first(std::min<qsizetype>(m_failures.size(), MostFailures));
    if (const qsizetype more = m_failures.size() - shown.size(); more > 0)
        shown.append(Texts::tr("… and %Ln more", nullptr, plural(more)));
    return shown.join(u'\n');
}
