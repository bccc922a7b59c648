#include "support/testmain.h"
#include "ui/aboutbox.h"
#include "ui/dialogbase.h"
#include "ui/dockwidget.h"
#include "ui/messagedialog.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

struct NameDialog : DialogBase
{
    QLineEdit *name = new QLineEdit(this);

    NameDialog() : DialogBase("New")
    {
        connect(name, &QLineEdit::textChanged, this, [this] { revalidate(); });
    }
    QString problem() const override { return name->text().isEmpty() ? "A name is needed" : QString(); }
};

} // namespace

class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void dialogStaysOpenUntilItsProblemIsGone()
    {
        NameDialog dialog;
        dialog.open();
        dialog.name->setText("x");
        dialog.name->clear();
        QCOMPARE(dialog.error(), QString()); // nobody is told off while typing
        dialog.okButton()->click();
        QVERIFY(dialog.isVisible() && dialog.error() == "A name is needed");
        dialog.reject();
        dialog.open(); // begins clean, with the keyboard in the first field
        QVERIFY(dialog.error().isEmpty() && dialog.focusWidget() == dialog.name);
        QTest::keyClick(dialog.name, Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget(), dialog.okButton());
        dialog.okButton()->click();
        dialog.name->setText("Forest");
        QCOMPARE(dialog.error(), QString());
        QTest::keyClick(dialog.name, Qt::Key_Return);
        QVERIFY(!dialog.isVisible() && dialog.result() == QDialog::Accepted);
    }

    void messagesWaitForTheirTurn()
    {
        MessageDialog dialog;
        for (int round = 0; round < 2; ++round) {
            dialog.showMessage("one");
            dialog.showMessage("two", "Palette In Use");
            QCOMPARE(dialog.text() + dialog.windowTitle(), "oneWarning!");
        }
        dialog.accept();
        QCOMPARE(dialog.text() + dialog.windowTitle(), "twoPalette In Use");
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }

    void dockSwitchesItsPages()
    {
        DockWidget dock("Tiles", "No tile set");
        const QSignalSpy changed(&dock, &DockWidget::activeChanged);
        dock.activate(); // nothing to show yet
        auto *content = new QWidget;
        dock.setContent(content);
        for (const bool active : {false, true, true, false}) {
            dock.setActive(active);
            QCOMPARE(content->isVisibleTo(&dock), active);
        }
        QCOMPARE(changed, (QList<QVariantList>{{true}, {false}}));
    }

    void aboutBoxHoldsTheLicenceOfTheIcons()
    {
        QVERIFY(AboutBox().findChild<QPlainTextEdit *>()->toPlainText().startsWith("ISC License"));
    }
};

QUENMORA_TEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
