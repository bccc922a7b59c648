#include "app/log.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestLog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void writesEachKindWithItsTime();
    void cleanupTestCase();

private:
    QTemporaryDir m_folder;
    QString m_before;
};

void TestLog::initTestCase()
{
    m_before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder.path()));
}

void TestLog::cleanupTestCase()
{
    QDir::setCurrent(m_before);
}

void TestLog::writesEachKindWithItsTime()
{
    // nothing reaches the disk before the handler is installed
    logMessageHandler(QtWarningMsg, {}, QStringLiteral("early"));
    QVERIFY(QDir().isEmpty());

    QVERIFY(QDir().mkdir(QStringLiteral("log")));
    QFile &file = installLogHandler();
    QCOMPARE(&installLogHandler(), &file);
    QVERIFY(
        QRegularExpression(QStringLiteral("^log/application_\\d{8}_\\d{6}\\.log$")).match(file.fileName()).hasMatch());

    qDebug("one");
    qInfo("two ä");
    qWarning("libpng warning: iCCP: known incorrect sRGB profile");
    qWarning("not a libpng warning: three");
    qCritical("four");
    logMessageHandler(QtFatalMsg, {}, QStringLiteral("five %s"));
    logMessageHandler(QtMsgType(99), {}, QStringLiteral("six"));
    qInstallMessageHandler(nullptr);

    // read while the log is still open: every message has been flushed
    QFile written(file.fileName());
    QVERIFY(written.open(QIODevice::ReadOnly));
    QString text = QString::fromLocal8Bit(written.readAll());
    text.replace(QRegularExpression(QStringLiteral("^\\d\\d:\\d\\d:\\d\\d "), QRegularExpression::MultilineOption),
                 QStringLiteral("TIME "));
    QCOMPARE(text,
             QStringLiteral("TIME Debug: one\nTIME Info: two ä\nTIME Warning: not a libpng warning: three\n"
                            "TIME Critical: four\nTIME Fatal: five %s\n"));
}

QUENMORA_TEST_MAIN(TestLog)

#include "tst_log.moc"
