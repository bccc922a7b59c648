#include "support/testmain.h"
#include "ui/toolpalette.h"

#include <QAction>
#include <QTest>
#include <QToolButton>

using namespace Quenmora::Ui;

namespace {

/// A palette that writes down what it announces: "8+" is 8, Fill, checked.
struct Fixture
{
    ToolPalette palette;
    QStringList heard;

    Fixture()
    {
        for (const ToolButton button : {Draw, Fill, Grid, ZoomIn})
            palette.addEntry(button);
        QObject::connect(&palette, &ToolPalette::actionActivated, &palette, [this](ToolButton button, bool checked) {
            heard += QString::number(button) + (checked ? "+" : "-");
        });
    }
};

} // namespace

class TestToolPalette : public QObject
{
    Q_OBJECT

private slots:
    void everyButtonHasAnEntry()
    {
        ToolPalette palette(Qt::Horizontal);
        for (int value = Draw; value <= ToggleViewport; ++value) {
            if (value != _end_toggles)
                palette.addEntry(ToolButton(value));
        }
        palette.addEntry(Draw); // is there already
        const auto buttons = palette.findChildren<QToolButton *>();
        QCOMPARE(buttons.size(), 36);
        for (const QToolButton *button : buttons)
            QVERIFY(!button->icon().isNull() && !button->toolTip().isEmpty() && !button->accessibleName().isEmpty());
    }

    void fitsIntoLittleHeight()
    {
        ToolPalette palette;
        for (int value = Draw; value < _end_toggles; ++value)
            palette.addEntry(ToolButton(value));
        for (const int height : {palette.sizeHint().height(), palette.minimumSizeHint().height(), 1000}) {
            palette.resize(palette.minimumSizeHint().width(), height);
            palette.resize(palette.minimumSizeHint().width(), height); // as a layout does
            palette.show();
            for (const QToolButton *button : palette.findChildren<QToolButton *>())
                QVERIFY(palette.rect().contains(button->geometry()));
        }
        QVERIFY(palette.minimumSizeHint().width() < palette.minimumSizeHint().height()); // two columns again
    }

    void announcesWhatIsDone()
    {
        Fixture f;
        const auto buttons = f.palette.findChildren<QToolButton *>();
        for (const int index : {0, 1, 1, 2, 2, 3})
            buttons[index]->click();
        QCOMPARE(f.palette.mode(), Fill);
        f.palette.setActionChecked(Grid, false);
        f.palette.setActionChecked(ZoomIn, true); // has no state
        f.palette.toggleAction(Grid);
        f.palette.setToolEnabled(Grid, false);
        f.palette.toggleAction(Grid);
        QCOMPARE(f.heard, QStringList({"0+", "8+", "8+", "12+", "12-", "13-", "12-", "12+"}));

        f.palette.setMode(Draw);
        f.palette.setMode(Grid); // no tool: the choice stays
        f.palette.setMode(Line); // not in this palette
        f.palette.setShowGridChecked(false);
        QVERIFY(f.palette.mode() == Draw && !f.palette.action(Grid)->isChecked());
        QCOMPARE(f.heard.size(), 8);
    }

    void shortcutsReachTheEditorThatBorrowsThem()
    {
        QWidget window;
        QWidget editor(&window);
        QWidget other(&window);
        Fixture f;
        ToolPalette::Entry entry = ToolPalette::entryOf(Line);
        entry.shortcuts = {QKeySequence(Qt::Key_L), QKeySequence(Qt::Key_I)};
        QCOMPARE(f.palette.addEntry(entry)->toolTip(), "Line [L]");
        editor.addActions(f.palette.actions());
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (QWidget *widget : {&other, &editor}) {
            widget->setFocusPolicy(Qt::StrongFocus);
            widget->setFocus();
            QTest::keyClick(widget, Qt::Key_L);
            QCOMPARE(f.heard, widget == &other ? QStringList() : QStringList("1+"));
        }
    }
};

QUENMORA_TEST_MAIN(TestToolPalette)
#include "tst_toolpalette.moc"
