#pragma once

#include "update/updatecontroller.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>

class AboutBox;
class UpdateDialog;
class QWidget;

/// Shows the user how an update check went: in the About box, and by dialogs where they are called for.
/// No dialog blocks; each is made when it is first needed.
class UpdatePresenter : public QObject
{
    Q_OBJECT

public:
    /// The dialogs stand over the window.
    UpdatePresenter(UpdateController *controller, QWidget *window);

public slots:
    void showAboutBox();
    /// Starts a check whose result is shown in any case.
    void checkForUpdates();

private:
    void offer(const Update::Release &release, UpdateController::Origin origin);
    void tellUpToDate(UpdateController::Origin origin);
    void tellFailure(const QString &error, UpdateController::Origin origin);
    void setStatus(const QString &status);
    void showBox(QMessageBox::Icon icon, const QString &text);

    UpdateController *m_controller;
    QWidget *m_window;
    QPointer<AboutBox> m_aboutBox;
    QPointer<UpdateDialog> m_updateDialog;
};
