#include "support/modeltools.h"
#include "support/testmain.h"
#include "ui/aboutbox.h"
#include "ui/checklist.h"
#include "ui/dialogbase.h"
#include "ui/messagedialog.h"
#include "ui/numberstepper.h"
#include "ui/outline.h"
#include "ui/popover.h"
#include "ui/readablehints.h"
#include "ui/scrollbar.h"
#include "ui/svgiconengine.h"
#include "ui/toolpalette.h"

#include <QtTest>
#include <QtWidgets>

using namespace Quenmora::Ui;

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

/// A palette that writes down what it announces: "8+" is 8, Fill, checked.
struct Tools
{
    ToolPalette palette;
    QStringList heard;

    Tools()
    {
        for (const ToolButton button : {Draw, Fill, Grid, ZoomIn})
            palette.addEntry(button);
        QObject::connect(&palette, &ToolPalette::actionActivated, &palette, [this](ToolButton button, bool checked) {
            heard += QString::number(button) + (checked ? "+" : "-");
        });
    }
};

/// The opaque colours of an icon, without the half-transparent pixels of its edges.
QSet<QRgb> solidColours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                colours.insert(image.pixel(x, y));
        }
    }
    return colours;
}

} // namespace

/// The small widgets of the kit.
class TestWidgets : public QObject
{
    Q_OBJECT

private slots:
    void popoverFindsRoom()
    {
        // a popover of 100 x 50 on a screen that starts at (10, 20) and measures 400 x 300
        const std::tuple<QRect, DialogPosition, QPoint, DialogPosition> cases[] = {
            {{100, 100, 20, 10}, RightOf, {120, 79}, RightOf},
            {{300, 100, 20, 10}, RightOf, {200, 79}, LeftOf}, // no room on the right
            {{290, 100, 20, 10}, RightOf, {310, 79}, RightOf}, // just room
            {{100, 60, 20, 10}, Above, {59, 70}, Below},
            {{100, 20, 20, 10}, RightOf, {120, 20}, RightOf}, // too high up
            {{100, 310, 20, 10}, RightOf, {120, 270}, RightOf}, // too far down
            {{50, 100, 300, 10}, LeftOf, {10, 79}, LeftOf}, // room on neither side
        };
        for (const auto &[target, wanted, corner, side] : cases) {
            DialogPosition position = wanted;
            QCOMPARE(Popover::place({100, 50}, target, {10, 20, 400, 300}, position), corner);
            QCOMPARE(position, side);
        }
    }

    void outlineIsSeenOnEveryGround()
    {
        for (const QColor ground : {Qt::black, Qt::white, Qt::gray}) {
            QImage image(50, 40, QImage::Format_RGB32);
            image.fill(ground);
            QPainter painter(&image);
            paintOutline(painter, {5, 3, 40, 30});
            painter.end();
            const auto seen = [&](int x, int y) {
                return std::abs(qGray(image.pixel(x, y)) - qGray(ground.rgb())) > 100;
            };
            // within any eight pixels along a side it differs from the ground; inside and around it nothing changed
            for (int at = 5; at + 8 <= 33; ++at) {
                int top = 0;
                int right = 0;
                for (int i = at; i < at + 8; ++i) {
                    top += seen(i, 3);
                    right += seen(44, i);
                }
                QVERIFY2(top >= 3 && right >= 3, qPrintable(QString::number(at)));
            }
            QVERIFY(!seen(7, 5) && !seen(4, 3) && !seen(45, 32));
        }
    }

    void hintsAreReadableInEveryTheme()
    {
        const auto theme = [](const QColor &text, const QColor &ground) {
            QPalette palette;
            palette.setColor(QPalette::WindowText, text);
            for (const auto role : {QPalette::Window, QPalette::Base})
                palette.setColor(role, ground);
            palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
            return palette;
        };
        const QPalette light = theme(Qt::black, Qt::white);
        QCOMPARE(ReadableHints::readable(light), light); // a theme's own colour is kept
        const QPalette before = QApplication::palette();
        QApplication::setPalette(theme(Qt::white, QColor(40, 40, 40)));
        QWidget window;
        new ReadableHints(&window);
        window.show();
        for (const QColor ground : {QColor(40, 40, 40), QColor(20, 20, 60)}) { // the second one while it runs
            QApplication::setPalette(theme(Qt::white, ground));
            QTRY_COMPARE(window.palette().color(QPalette::Window), ground);
            QTRY_VERIFY(window.palette().color(QPalette::PlaceholderText).lightness() > 200);
        }
        QApplication::setPalette(before);
    }

    void popoverPointsAtItsTargetAndClosesOnEscape()
    {
        Popover popover(nullptr);
        popover.setContent(new QLabel("Sprite\nproperties\nof three lines"));
        const QSignalSpy closed(&popover, &Popover::closed);
        const QRect target(200, 200, 10, 10);
        popover.showBeside(target);
        QCOMPARE(std::pair(popover.arrow(), popover.x()), std::pair(Quenmora::Ui::Left, 210));
        QVERIFY(popover.mask().contains({1, target.center().y() - popover.y()}));
        popover.showBeside(target, Below);
        QCOMPARE(std::pair(popover.arrow(), popover.y()), std::pair(Quenmora::Ui::Up, 210));
        QTest::keyClick(&popover, Qt::Key_Escape);
        QVERIFY(!popover.isVisible() && closed.size() == 1);
    }

    void stepperStaysInItsRange()
    {
        NumberStepper stepper;
        const QSignalSpy changed(&stepper, &NumberStepper::valueChanged);
        const auto buttons = stepper.findChildren<QToolButton *>(); // back and forward
        stepper.setRange(1, 3);
        for (const int button : {1, 1, 1, 0})
            buttons[button]->click();
        stepper.showIndex();
        QCOMPARE(stepper.findChild<QSpinBox *>()->text(), "2 (index 1)");
        stepper.setRange(1, 1);
        QCOMPARE(changed, (QList<QVariantList>{{2}, {3}, {2}, {1}}));
        QVERIFY(!buttons[0]->isEnabled() && !buttons[1]->isEnabled());
    }

    void scrollBarButtonsNameTheirEnd()
    {
        ScrollBar bar(Qt::Horizontal);
        SignalLog heard;
        heard.listen(bar, &ScrollBar::add, "add");
        heard.listen(bar, &ScrollBar::remove, "remove");
        for (QToolButton *button : bar.findChildren<QToolButton *>()) // from the beginning to the end
            button->click();
        QCOMPARE(heard.take(), QStringList({"add 0", "remove 0", "remove 1", "add 1"}));
    }

    void checkListTicksByClickAndByKey()
    {
        CheckList list;
        for (const QString text : {"zero", "one", "two"})
            list.addCheck(text);
        list.resize(200, 200);
        list.show();
        const QSignalSpy changed(&list, &CheckList::checkChanged);
        const QRect row = list.visualItemRect(list.item(1));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row.center());
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Space);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {row.left() + 8, row.center().y()}); // on the box itself
        QCOMPARE(changed, (QList<QVariantList>{{1, true}, {2, true}, {1, false}}));
    }

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

    void toolsFitIntoLittleRoom()
    {
        ToolPalette palette;
        ToolPalette bar(Qt::Horizontal);
        for (int value = Draw; value < _end_toggles; ++value) {
            palette.addEntry(ToolButton(value));
            bar.addEntry(ToolButton(value));
        }
        const auto verifySeen = [](ToolPalette &shown, QSize size) {
            shown.resize(size);
            shown.resize(size); // as a layout does
            shown.show();
            QRegion taken;
            for (const QToolButton *button : shown.findChildren<QToolButton *>()) {
                QVERIFY(shown.rect().contains(button->geometry()) && !taken.intersects(button->geometry()));
                taken += button->geometry();
            }
        };
        for (const int height : {palette.sizeHint().height(), palette.minimumSizeHint().height(), 1000})
            verifySeen(palette, {palette.minimumSizeHint().width(), height});
        QVERIFY(palette.minimumSizeHint().width() < palette.minimumSizeHint().height()); // two columns again
        for (const int width : {100, 101, 115, 400})
            verifySeen(bar, {width, bar.heightForWidth(width)});
    }

    void toolsAnnounceWhatIsDone()
    {
        Tools f;
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
        Tools f;
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

    void everyIconDrawsAndHasItsLicence()
    {
        int seen = 0;
        QDirIterator resources(":/", QDir::Files, QDirIterator::Subdirectories);
        while (resources.hasNext()) {
            QFile file(resources.next());
            if (!file.open(QIODevice::ReadOnly) || !file.readAll().contains("currentColor"))
                continue; // Qt's own
            ++seen;
            QVERIFY2(!solidColours(themedIcon(file.fileName()).pixmap(24).toImage()).isEmpty(),
                     qPrintable(file.fileName()));
        }
        QVERIFY(seen > 90);
        QTest::ignoreMessage(QtWarningMsg, "No icon :/Nothing");
        QVERIFY(themedIcon(":/Nothing").pixmap(16).isNull());
        // the program's own keeps its colours, and cursors have a sharp twin
        QVERIFY(solidColours(themedIcon(":Application").pixmap(64).toImage()).contains(qRgb(0xf0, 0x38, 0x4a)));
        for (const QString name : {":/FillCursor", ":/PickerCursor"})
            QCOMPARE(QImage(name + "@2x").size(), 2 * QImage(name).size());
        QVERIFY(AboutBox().findChild<QPlainTextEdit *>()->toPlainText().startsWith("ISC License"));
    }

    void iconsTakeTheirColourFromThePaletteAndTheSizeOfTheScreen()
    {
        const QPalette before = QApplication::palette();
        const QIcon icon = themedIcon(":/RectangleFill");
        for (const auto &colours :
             {QList<QColor>{Qt::black, Qt::gray, Qt::white}, {Qt::white, Qt::darkGray, Qt::black}}) {
            QPalette palette = before;
            palette.setColor(QPalette::ButtonText, colours[0]);
            palette.setColor(QPalette::Disabled, QPalette::ButtonText, colours[1]);
            palette.setColor(QPalette::HighlightedText, colours[2]);
            QApplication::setPalette(palette);
            const QIcon::Mode modes[] = {QIcon::Normal, QIcon::Disabled, QIcon::Selected};
            for (int i = 0; i < 3; ++i)
                QCOMPARE(solidColours(icon.pixmap(24, modes[i]).toImage()), QSet{colours[i].rgb()});
        }
        QApplication::setPalette(before);
        for (const auto &[ratio, side] : {std::pair{1.0, 24}, {1.25, 30}, {2.0, 48}}) {
            const QPixmap pixmap = icon.pixmap(QSize(24, 24), ratio);
            QCOMPARE(std::pair(pixmap.size(), pixmap.devicePixelRatio()), std::pair(QSize(side, side), ratio));
        }
    }
};

QUENMORA_TEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
