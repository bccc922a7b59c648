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
    void showsTheReleaseAsPlainText()
    {
        UpdateDialog dialog;
        dialog.setRelease({"<b>0.8</b>", "stable", "2026-12-01", {}, {}}, "0.7.0.0", "2026-10-15");
        const auto *heading = dialog.findChild<QLabel *>("heading");
        const auto *detail = dialog.findChild<QLabel *>("detail");
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Quenmora — update available"));
        QCOMPARE(heading->text(), "Quenmora <b>0.8</b> is available");
        QCOMPARE(detail->text(), "You have 0.7.0.0 (built 2026-10-15).\nThe new version was released 2026-12-01.");
        QVERIFY(heading->textFormat() == Qt::PlainText && detail->textFormat() == Qt::PlainText);
        const QString endless(100'000, u'9');
        dialog.setRelease({endless, "stable", endless, {}, {}}, "0.7.0.0", "2026-10-15");
        QVERIFY(dialog.sizeHint().width() < 1024 && dialog.sizeHint().height() < 768);
    }

    void opensOnlyWebAddressesUntilItCloses()
    {
        UpdateDialog dialog;
        dialog.show();
        for (const QString address :
             {"https://www.example.org/n?v=1", "http://e.org/", "", "file:///etc/", "vnc://e/"}) {
            m_opened.clear();
            QDesktopServices::setUrlHandler(QUrl(address).scheme(), this, "openAddress");
            const QString other = address.isEmpty() ? "" : address + 'd';
            dialog.setRelease({"0.8", "stable", "", address, other}, "0.7", "");
            const bool opens = address.startsWith("http");
            for (const char *name : {"releaseNotes", "download"}) {
                auto *button = dialog.findChild<QPushButton *>(name);
                QCOMPARE(button->isEnabled(), opens);
                button->click();
            }
            QCOMPARE(m_opened, opens ? (QList<QUrl>{QUrl(address), QUrl(other)}) : QList<QUrl>());
        }
        QSignalSpy skipped(&dialog, &UpdateDialog::skipVersion);
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Return); // "Later"
        QVERIFY(!dialog.isVisible() && skipped.isEmpty());
        dialog.show();
        dialog.findChild<QPushButton *>("skip")->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(skipped, (QList<QVariantList>{{"0.8"}}));
    }

private:
    QList<QUrl> m_opened;
};

QUENMORA_TEST_MAIN(TestUpdateDialog)
#include "tst_updatedialog.moc"
