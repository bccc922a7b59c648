#include "app/exportproject/exportreport.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

using NextData::Recipe;
using NextData::RecipeRun;

namespace {

constexpr int MostFailures = 8; // that a message box shows

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExportReport)
};

QString number(qint64 value)
{
    return QLocale().toString(value);
}

QString counted(qint64 count, const QString &one, const QString &many)
{
    return count == 1 ? one : many.arg(number(count));
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
    if (m_written == 0 && m_failures.isEmpty() && !m_stopped)
        return Texts::tr("Nothing to export: %1 in %2")
            .arg(counted(m_unchanged, Texts::tr("1 file is unchanged"), Texts::tr("%1 files are unchanged")), folder);
    QString text = m_written > 0 ? Texts::tr("Exported %1 (%2)")
                                       .arg(counted(m_written, Texts::tr("1 file"), Texts::tr("%1 files")),
                                            counted(m_bytes, Texts::tr("1 byte"), Texts::tr("%1 bytes")))
                                 : Texts::tr("Exported nothing");
    const bool isAll = m_unchanged == 0 && m_failures.isEmpty();
    if (m_unchanged > 0)
        text += Texts::tr(", %1 unchanged").arg(number(m_unchanged));
    if (!m_failures.isEmpty())
        text += Texts::tr(", %1 failed").arg(number(m_failures.size()));
    text += (isAll ? Texts::tr(" to %1") : Texts::tr(", to %1")).arg(folder);
    return m_stopped ? Texts::tr("Stopped: %1").arg(text) : text;
}

QString ExportReport::failures() const
{
    QStringList shown = m_failures.first(std::min<qsizetype>(m_failures.size(), MostFailures));
    if (const qsizetype more = m_failures.size() - shown.size(); more > 0)
        shown.append(Texts::tr("… and %1 more").arg(number(more)));
    return shown.join(u'\n');
}
