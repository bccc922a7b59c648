#include "app/updatepresenter.h"

#include "app/preferences/generalpage.h"
#include "app/version.h"
#include "support/testmain.h"
#include "ui/aboutbox.h"
#include "update/updatedialog.h"

#include <QTest>

#include <optional>

namespace {

enum Result { Available, UpToDate, Failed };

} // namespace

class TestUpdatePresenter : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_page.emplace(); }
    void cleanup() { m_page.reset(); } // no widget outlives the application
    void tellsWhoAsked_data();
    void tellsWhoAsked();
    void skipsTheOfferedVersion();

private:
    std::optional<GeneralPage> m_page;
};

void TestUpdatePresenter::tellsWhoAsked_data()
{
    QTest::addColumn<Result>("result");
    QTest::addColumn<UpdateController::Origin>("origin");
    QTest::addColumn<QString>("status"); // in the About box
    QTest::addColumn<QString>("text"); // of a message box; empty when none comes
    QTest::addColumn<bool>("offered"); // by the update dialog
    const QString newer = "Update available: 0.7.1.0";
    const QString same = QString::fromUtf8("You’re up to date");
    const QString gone = "Could not reach the update server";
    const auto start = UpdateController::Startup;
    const auto menu = UpdateController::Manual;
    const auto about = UpdateController::AboutBox;
    QTest::newRow("newer, at the start") << Available << start << newer << QString() << true;
    QTest::newRow("newer, from the menu") << Available << menu << newer << QString() << true;
    QTest::newRow("newer, About box") << Available << about << newer << QString() << false;
    QTest::newRow("same, at the start") << UpToDate << start << same << QString() << false;
    QTest::newRow("same, from the menu") << UpToDate << menu << same << "Quenmora 0.7.0.0 is up to date." << false;
    QTest::newRow("same, About box") << UpToDate << about << same << QString() << false;
    QTest::newRow("failed, at the start") << Failed << start << gone << QString() << false;
    QTest::newRow("failed, from the menu")
        << Failed << menu << gone << "Could not reach the update server.\n<b>Refused" << false;
    QTest::newRow("failed, About box") << Failed << about << gone << QString() << false;
}

void TestUpdatePresenter::tellsWhoAsked()
{
    QFETCH(const Result, result);
    QFETCH(const UpdateController::Origin, origin);
    QFETCH(const QString, text);
    QFETCH(const bool, offered);
    Update::UpdateChecker::setFeedAddress({});
    UpdateController controller(&*m_page, [] {}, {appVersion(), appReleaseDate(), appChannel()});
    QWidget window;
    UpdatePresenter presenter(&controller, &window);
    presenter.showAboutBox();
    const auto *about = window.findChild<AboutBox *>();
    QCOMPARE(about->status(), QString::fromUtf8("Checking for updates…"));

    if (result == Available)
        emit controller.updateAvailable({"0.7.1.0", "stable", "2026-12-01", {}, {}}, origin);
    else if (result == UpToDate)
        emit controller.upToDate(origin);
    else
        emit controller.checkFailed("<b>Refused", origin);
    QTEST(about->status(), "status");
    const auto *dialog = window.findChild<UpdateDialog *>();
    QCOMPARE(dialog && dialog->isVisible(), offered);
    const auto *box = window.findChild<QMessageBox *>();
    QCOMPARE(box ? box->text() : QString(), text);
    if (box) {
        QVERIFY(box->isVisible());
        QCOMPARE(box->windowTitle(), "Check for Updates");
        QCOMPARE(box->icon(), result == Failed ? QMessageBox::Warning : QMessageBox::Information);
        QCOMPARE(box->textFormat(), Qt::PlainText); // it quotes the network
    }
}

void TestUpdatePresenter::skipsTheOfferedVersion()
{
    UpdateController controller(&*m_page, [] {}, {appVersion(), appReleaseDate(), appChannel()});
    QWidget window;
    const UpdatePresenter presenter(&controller, &window);
    emit controller.updateAvailable({"0.7.1.0", "stable", "2026-12-01", {}, {}}, UpdateController::Startup);
    emit window.findChild<UpdateDialog *>()->skipVersion("0.7.1.0");
    QCOMPARE(m_page->skippedVersion(), "0.7.1.0");
}

QUENMORA_TEST_MAIN(TestUpdatePresenter)
#include "tst_updatepresenter.moc"
