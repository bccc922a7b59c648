#include "app/exportmessages.h"

#include "model/plural.h"

#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <QTimer>

namespace {

constexpr int MessageTime = 10000; // milliseconds: there is a path to be read

int bytesOf(const QFileInfo &file)
{
    return plural(file.size());
}

} // namespace

ExportMessages::ExportMessages(QStatusBar *statusBar) : QObject(statusBar), m_statusBar(statusBar) { }

void ExportMessages::add(const QString &asset, const QString &filePath)
{
    if (m_written.isEmpty())
        QTimer::singleShot(0, this, [this] { m_written.clear(); });
    m_written.append({asset, filePath});
    show(text());
}

void ExportMessages::show(const QString &message)
{
    m_statusBar->showMessage(message, MessageTime);
}

QString ExportMessages::text() const
{
    if (m_written.size() == 1) {
        const auto &[asset, filePath] = m_written.constFirst();
        return tr("Exported %1 to %2 (%Ln bytes)", nullptr, bytesOf(QFileInfo(filePath)))
            .arg(asset, QDir::toNativeSeparators(filePath));
    }
    QStringList files;
    for (const Written &written : m_written) {
        const QFileInfo file(written.filePath);
        files.append(tr("%1 (%Ln bytes)", nullptr, bytesOf(file)).arg(file.fileName()));
    }
    const QString folder = QFileInfo(m_written.constFirst().filePath).path();
    return tr("Exported to %1: %2").arg(QDir::toNativeSeparators(folder), files.join(QStringLiteral(", ")));
}
