#include "support/testmain.h"
#include "update/updatedialog.h"

#include <QDesktopServices>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

class TestUpdateDialog : public QObject
{
    Q_OBJECT

public slots:
    void openAddress(const QUrl &address) { m_opened.append(address); }

private slots:
    void init();
    void showsTheReleaseAsPlainText();
    void opensOnlyWebAddresses();
    void skipAndLaterClose();

private:
    static QPushButton *button(const UpdateDialog &dialog, const char *name)
    {
        return dialog.findChild<QPushButton *>(QLatin1String(name));
    }

    QList<QUrl> m_opened;
};

void TestUpdateDialog::init()
{
    for (const char *scheme : {"http", "https", "file", "vnc"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "openAddress");
}

void TestUpdateDialog::showsTheReleaseAsPlainText()
{
    UpdateDialog dialog;
    dialog.setRelease({"<b>0.8</b>", "stable", "2026-12-01", {}, {}}, "0.7.0.0", "2026-10-15");
    const auto *heading = dialog.findChild<QLabel *>("heading");
    const auto *detail = dialog.findChild<QLabel *>("detail");
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Quenmora — update available"));
    QCOMPARE(heading->text(), QStringLiteral("Quenmora <b>0.8</b> is available"));
    QCOMPARE(heading->textFormat(), Qt::PlainText);
    QCOMPARE(detail->text(),
             QStringLiteral("You have 0.7.0.0 (built 2026-10-15).\nThe new version was released 2026-12-01."));
    QCOMPARE(detail->textFormat(), Qt::PlainText);

    dialog.setRelease({QString(100'000, u'9'), "stable", QString(100'000, u'9'), {}, {}}, "0.7.0.0", "2026-10-15");
    QVERIFY(dialog.sizeHint().width() < 1024 && dialog.sizeHint().height() < 768);
}

void TestUpdateDialog::opensOnlyWebAddresses()
{
    UpdateDialog dialog;
    dialog.show();
    for (const QString address : {"https://www.example.org/notes?v=1", "http://www.example.org/", "",
                                  "file:///etc/passwd", "vnc://192.0.2.1/"}) {
        m_opened.clear();
        const bool opens = address.startsWith("http");
        for (const bool notes : {true, false}) {
            const QString none;
            dialog.setRelease({"0.8", "stable", "2026-12-01", notes ? address : none, notes ? none : address},
                              "0.7.0.0", "2026-10-15");
            QCOMPARE(button(dialog, "releaseNotes")->isEnabled(), notes && opens);
            QCOMPARE(button(dialog, "download")->isEnabled(), !notes && opens);
            button(dialog, notes ? "releaseNotes" : "download")->click();
        }
        QCOMPARE(m_opened, QList<QUrl>(opens ? 2 : 0, QUrl(address)));
    }
    QVERIFY(dialog.isVisible());
}

void TestUpdateDialog::skipAndLaterClose()
{
    UpdateDialog dialog;
    dialog.setRelease({"0.8", "stable", "2026-12-01", {}, {}}, "0.7.0.0", "2026-10-15");
    QSignalSpy skipped(&dialog, &UpdateDialog::skipVersion);
    QVERIFY(button(dialog, "later")->isDefault());

    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(skipped.count(), 0);

    dialog.show();
    button(dialog, "skip")->click();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(skipped.count(), 1);
    QCOMPARE(skipped.first().first().toString(), QStringLiteral("0.8"));
}

QUENMORA_TEST_MAIN(TestUpdateDialog)
#include "tst_updatedialog.moc"
