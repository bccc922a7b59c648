#include "support/testmain.h"

#include <QtTest>
#include <QtWidgets>

int runTest(QObject &test, int argc, char **argv)
{
    const QTemporaryDir home;
    for (const char *name : {"HOME", "USERPROFILE"}) // the second one is what Windows goes by
        qputenv(name, home.path().toLocal8Bit());
    qunsetenv("XDG_CACHE_HOME"); // it is in that folder, too
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen:")) // with a screen that is described
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}
