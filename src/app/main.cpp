#include "app/log.h"
#include "app/mainwindow.h"
#include "app/platform.h"
#include "app/version.h"
#include "language/catalogues.h"

#include <QApplication>
#include <QDir>

int main(int argc, char **argv)
{
    // before the application exists, so that what is said while it is made is logged, too
    if (QDir(QStringLiteral("log")).exists())
        installLogHandler();

    QApplication::setApplicationName(QStringLiteral("Quenmora"));
    QApplication::setOrganizationName(QStringLiteral("Corvandel"));
    QApplication::setApplicationVersion(appVersion());
    QApplication::setApplicationDisplayName(appDisplayName());
    QApplication::setDesktopFileName(QStringLiteral("quenmora")); // by which Wayland desktops know the icon

    Platform::chooseStyle();
    QApplication application(argc, argv);
    Catalogues::install(application);
    MainWindow window;
    window.fitToScreen();
    return QApplication::exec();
}
