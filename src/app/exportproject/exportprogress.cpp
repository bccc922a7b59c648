#include "app/exportproject/exportprogress.h"

#include <QCoreApplication>

namespace {

// milliseconds
constexpr int UpdateInterval = 40; // every update repaints and handles events
constexpr int Patience = 250;

QString tr(const char *text)
{
    return QCoreApplication::translate("ExportProgress", text);
}

} // namespace

ExportProgress::ExportProgress(QWidget *parent) : m_dialog(tr("Exporting the project…"), tr("&Stop"), 0, 1, parent)
{
    m_dialog.setWindowTitle(tr("Export Project"));
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setMinimumDuration(Patience);
    m_dialog.setValue(0);
    m_sinceUpdate.start();
}

bool ExportProgress::operator()(int done, int count)
{
    if (done < count && m_sinceUpdate.elapsed() >= UpdateInterval) {
        m_dialog.setMaximum(count);
        m_dialog.setValue(done);
        m_sinceUpdate.restart();
    }
    return !m_dialog.wasCanceled();
}
