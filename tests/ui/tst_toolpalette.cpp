#include "support/testmain.h"
#include "ui/toolpalette.h"

#include <QAction>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace Quenmora::Ui;

class TestToolPalette : public QObject
{
    Q_OBJECT

private slots:
    void everyButtonHasAnEntry();
    void clicksAreAnnounced();
    void statesSetFromOutside();
    void shortcutsReachTheEditorThatBorrowsThem();
};

namespace {

QToolButton *buttonOf(const ToolPalette &palette, ToolButton button)
{
    for (auto *candidate : palette.findChildren<QToolButton *>()) {
        if (candidate->defaultAction() == palette.action(button))
            return candidate;
    }
    return nullptr;
}

QList<QVariantList> activations(QSignalSpy &spy)
{
    QList<QVariantList> result;
    while (!spy.isEmpty()) {
        const QVariantList arguments = spy.takeFirst();
        result.append({arguments[0].toInt(), arguments[1].toBool()});
    }
    return result;
}

void fill(ToolPalette &palette)
{
    for (const ToolButton button : {Draw, Fill, Grid, ZoomIn})
        palette.addEntry(button);
}

} // namespace

void TestToolPalette::everyButtonHasAnEntry()
{
    ToolPalette palette(Qt::Horizontal);
    for (int value = Draw; value <= ToggleViewport; ++value) {
        if (value != _end_toggles) {
            const QAction *action = palette.addEntry(static_cast<ToolButton>(value));
            QVERIFY2(!action->icon().isNull() && !action->text().isEmpty(), qPrintable(action->text()));
            QVERIFY(!buttonOf(palette, static_cast<ToolButton>(value))->accessibleName().isEmpty());
        }
    }
    QCOMPARE(palette.actions().size(), 36);
    palette.addEntry(Draw);
    QCOMPARE(palette.actions().size(), 36);
    QCOMPARE(palette.action(ZoomOut)->toolTip(), "Zoom Out");
}

void TestToolPalette::clicksAreAnnounced()
{
    ToolPalette palette;
    fill(palette);
    QSignalSpy spy(&palette, &ToolPalette::actionActivated);
    for (const ToolButton button : {Draw, Fill, Fill, Grid, Grid, ZoomIn})
        buttonOf(palette, button)->click();
    QCOMPARE(
        activations(spy),
        (QList<QVariantList>{{Draw, true}, {Fill, true}, {Fill, true}, {Grid, true}, {Grid, false}, {ZoomIn, false}}));
    QCOMPARE(palette.mode(), Fill);
}

void TestToolPalette::statesSetFromOutside()
{
    ToolPalette palette;
    fill(palette);
    QSignalSpy spy(&palette, &ToolPalette::actionActivated);

    palette.setMode(Draw);
    palette.setMode(Grid); // no tool: the choice stays
    palette.setMode(Line); // not in this palette
    palette.setShowGridChecked(true);
    QCOMPARE(palette.mode(), Draw);
    QVERIFY(palette.action(Grid)->isChecked());
    QVERIFY(spy.isEmpty());

    palette.setActionChecked(Grid, false);
    palette.setActionChecked(ZoomIn, true); // has no state
    palette.toggleAction(Grid);
    QCOMPARE(activations(spy), (QList<QVariantList>{{Grid, false}, {Grid, true}}));

    palette.setToolEnabled(Grid, false);
    palette.toggleAction(Grid);
    QVERIFY(!buttonOf(palette, Grid)->isEnabled());
    QVERIFY(spy.isEmpty());
}

void TestToolPalette::shortcutsReachTheEditorThatBorrowsThem()
{
    QWidget window;
    QWidget editor(&window);
    QWidget other(&window);
    ToolPalette palette(Qt::Vertical, &window);
    ToolPalette::Entry entry = ToolPalette::entryOf(Draw);
    entry.shortcuts = {QKeySequence(Qt::Key_D), QKeySequence(Qt::Key_P)};
    QCOMPARE(palette.addEntry(entry)->toolTip(), "Draw [D]");
    editor.addActions(palette.actions());
    for (QWidget *widget : {&editor, &other})
        widget->setFocusPolicy(Qt::StrongFocus);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSignalSpy spy(&palette, &ToolPalette::actionActivated);
    other.setFocus();
    QTest::keyClick(&other, Qt::Key_D);
    QVERIFY(spy.isEmpty());
    editor.setFocus();
    QTest::keyClick(&editor, Qt::Key_D);
    QCOMPARE(activations(spy), (QList<QVariantList>{{Draw, true}}));
}

QUENMORA_TEST_MAIN(TestToolPalette)
#include "tst_toolpalette.moc"
