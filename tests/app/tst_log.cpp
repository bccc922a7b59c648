#include "app/log.h"
#include "support/testmain.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestLog : public QObject
{
    Q_OBJECT

private slots:
    void writesEachKindWithItsTime()
    {
        const QString before = QDir::currentPath();
        const QTemporaryDir folder;
        QVERIFY(QDir::setCurrent(folder.path()));
        logMessageHandler(QtWarningMsg, {}, "early");
        QVERIFY2(QDir().isEmpty(), "nothing reaches the disk before the handler is installed");

        QVERIFY(QDir().mkdir("log"));
        QFile &file = installLogHandler();
        QCOMPARE(&installLogHandler(), &file);
        QVERIFY(QRegularExpression("^log/application_\\d{8}_\\d{6}\\.log$").match(file.fileName()).hasMatch());
        qDebug("one");
        qInfo("two ä");
        qWarning("libpng warning: iCCP: known incorrect sRGB profile");
        qWarning("not a libpng warning: three");
        qCritical("four");
        logMessageHandler(QtFatalMsg, {}, "five %s");
        logMessageHandler(QtMsgType(99), {}, "six");
        qInstallMessageHandler(nullptr);

        // read while the log is still open: every message has been flushed
        QFile written(file.fileName());
        QVERIFY(written.open(QIODevice::ReadOnly));
        QString text = QString::fromUtf8(written.readAll());
        text.replace(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d ", QRegularExpression::MultilineOption), "TIME ");
        QCOMPARE(text,
                 "TIME Debug: one\nTIME Info: two ä\nTIME Warning: not a libpng warning: three\nTIME Critical: four\n"
                 "TIME Fatal: five %s\n");
        QDir::setCurrent(before);
    }
};

QUENMORA_TEST_MAIN(TestLog)

#include "tst_log.moc"
