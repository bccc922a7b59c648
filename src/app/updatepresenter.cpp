#include "app/updatepresenter.h"

#include "app/version.h"
#include "ui/aboutbox.h"
#include "ui/titlewidth.h"
#include "update/updatedialog.h"

UpdatePresenter::UpdatePresenter(UpdateController *controller, QWidget *window)
    : QObject(window)
    , m_controller(controller)
    , m_window(window)
{
    connect(controller, &UpdateController::updateAvailable, this, &UpdatePresenter::offer);
    connect(controller, &UpdateController::upToDate, this, &UpdatePresenter::tellUpToDate);
    connect(controller, &UpdateController::checkFailed, this, &UpdatePresenter::tellFailure);
}

void UpdatePresenter::showAboutBox()
{
    if (!m_aboutBox) {
        m_aboutBox = new AboutBox(m_window);
        connect(m_aboutBox, &AboutBox::shown, this, [this] {
            setStatus(tr("Checking for updates…"));
            m_controller->checkNow(UpdateController::AboutBox);
        });
    }
    m_aboutBox->open();
}

void UpdatePresenter::checkForUpdates()
{
    m_controller->checkNow(UpdateController::Manual);
}

void UpdatePresenter::setStatus(const QString &status)
{
    if (m_aboutBox)
        m_aboutBox->setStatus(status);
}

void UpdatePresenter::offer(const Update::Release &release, UpdateController::Origin origin)
{
    setStatus(tr("Update available: %1").arg(release.latest));
    if (origin == UpdateController::AboutBox)
        return;
    if (!m_updateDialog) {
        m_updateDialog = new UpdateDialog(m_window);
        connect(m_updateDialog, &UpdateDialog::skipVersion, m_controller, &UpdateController::skipVersion);
    }
    m_updateDialog->setRelease(release, appVersion(), appReleaseDate());
    m_updateDialog->show();
}

void UpdatePresenter::tellUpToDate(UpdateController::Origin origin)
{
    setStatus(tr("You’re up to date"));
    if (origin == UpdateController::Manual)
        showBox(QMessageBox::Information, tr("Quenmora %1 is up to date.").arg(appVersion()));
}

void UpdatePresenter::tellFailure(const QString &error, UpdateController::Origin origin)
{
    setStatus(tr("Could not reach the update server"));
    if (origin == UpdateController::Manual)
        showBox(QMessageBox::Warning, tr("Could not reach the update server.\n%1").arg(error));
}

void UpdatePresenter::showBox(QMessageBox::Icon icon, const QString &text)
{
    auto *box = new QMessageBox(icon, tr("Check for Updates"), text, QMessageBox::Ok, m_window);
    box->setTextFormat(Qt::PlainText);
    widenForTitle(*box);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
