#include "support/testmain.h"
#include "ui/aboutbox.h"
#include "ui/dialogbase.h"
#include "ui/dockwidget.h"
#include "ui/messagedialog.h"

#include <QApplication>
#include <QFormLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

namespace {

class NameDialog : public DialogBase
{
public:
    NameDialog() : DialogBase("New")
    {
        form()->addRow("&Name", name);
        connect(name, &QLineEdit::textChanged, this, [this] { revalidate(); });
    }

    QLineEdit *name = new QLineEdit(this);

protected:
    QString problem() const override { return name->text().isEmpty() ? "A name is needed" : QString(); }
};

} // namespace

class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void dialogStaysOpenUntilItsProblemIsGone();
    void dialogStartsCleanWithTheKeyboardInTheFirstField();
    void messagesWaitForTheirTurn();
    void dockSwitchesItsPages();
    void aboutBoxShowsTheLicenceAndTellsWhenItOpens();
};

void TestDialogs::dialogStaysOpenUntilItsProblemIsGone()
{
    NameDialog dialog;
    QSignalSpy accepted(&dialog, &QDialog::accepted);
    dialog.open();
    dialog.name->setText("x");
    dialog.name->clear();
    QCOMPARE(dialog.error(), QString()); // nobody is told off while typing
    dialog.okButton()->click();
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.error(), "A name is needed");
    dialog.name->setText("Forest");
    QCOMPARE(dialog.error(), QString());
    QTest::keyClick(dialog.name, Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(accepted.size(), 1);
}

void TestDialogs::dialogStartsCleanWithTheKeyboardInTheFirstField()
{
    NameDialog dialog;
    dialog.open();
    dialog.okButton()->click();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
    dialog.name->setText("Forest");
    dialog.okButton()->setFocus();
    dialog.open();
    QCOMPARE(dialog.error(), QString());
    QCOMPARE(dialog.focusWidget(), dialog.name);
    QCOMPARE(dialog.name->selectedText(), "Forest");
    QTest::keyClick(dialog.name, Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget(), dialog.okButton());
    QTest::keyClick(dialog.okButton(), Qt::Key_Backtab);
    QCOMPARE(dialog.focusWidget(), dialog.name);
}

void TestDialogs::messagesWaitForTheirTurn()
{
    MessageDialog dialog;
    dialog.showMessage("one");
    dialog.showMessage("two", "Palette In Use");
    dialog.showMessage("one");
    dialog.showMessage("two", "Palette In Use");
    QCOMPARE(dialog.text(), "one");
    QCOMPARE(dialog.windowTitle(), "Warning!");
    dialog.accept();
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.text(), "two");
    QCOMPARE(dialog.windowTitle(), "Palette In Use");
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

void TestDialogs::dockSwitchesItsPages()
{
    DockWidget dock("Tiles", "No tile set");
    QSignalSpy changed(&dock, &DockWidget::activeChanged);
    dock.activate(); // nothing to show yet
    QVERIFY(!dock.isActive());
    auto *content = new QWidget;
    dock.setContent(content);
    QVERIFY(!dock.isActive());
    dock.activate();
    dock.activate();
    QVERIFY(content->isVisibleTo(&dock));
    dock.deactivate();
    QVERIFY(!content->isVisibleTo(&dock));
    QCOMPARE(changed, (QList<QVariantList>{{true}, {false}}));
}

void TestDialogs::aboutBoxShowsTheLicenceAndTellsWhenItOpens()
{
    AboutBox box;
    QSignalSpy shown(&box, &AboutBox::shown);
    box.open();
    QCOMPARE(shown.size(), 1);
    QVERIFY(box.findChild<QPlainTextEdit *>()->toPlainText().startsWith("ISC License"));
    box.setStatus("<b>1.0");
    QCOMPARE(box.status(), "<b>1.0");
}

QUENMORA_TEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
