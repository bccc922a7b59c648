#include "support/modeltools.h"
#include "support/testmain.h"
#include "ui/checklist.h"
#include "ui/dockwidget.h"
#include "ui/expandablesection.h"
#include "ui/flowlayout.h"
#include "ui/numberstepper.h"
#include "ui/outline.h"
#include "ui/popover.h"
#include "ui/readablehints.h"
#include "ui/scrollbar.h"

#include <QLabel>
#include <QPainter>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

using namespace Quenmora::Ui;

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
            for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
                palette.setColor(role, text);
            for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
                palette.setColor(role, ground);
            palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
            return palette;
        };
        const QPalette light = theme(Qt::black, Qt::white);
        const QPalette before = QApplication::palette();
        QApplication::setPalette(theme(Qt::white, QColor(40, 40, 40)));
        QWidget window;
        new ReadableHints(&window);
        window.show();
        DockWidget dock("Dock", "Nothing here");
        dock.resize(200, 100);
        dock.show();
        const auto spread = [&dock] {
            const QImage grey = dock.findChild<QLabel *>()->grab().toImage().convertToFormat(QImage::Format_Grayscale8);
            const QByteArray levels = indices(grey);
            const auto [darkest, lightest] = std::ranges::minmax(levels, {}, [](char level) { return uchar(level); });
            return uchar(lightest) - uchar(darkest);
        };
        QVERIFY2(spread() > 80, qPrintable(QString::number(spread())));
        QApplication::setPalette(theme(Qt::white, QColor(20, 20, 60))); // while it runs
        QTRY_COMPARE(dock.palette().color(QPalette::Window), QColor(20, 20, 60));
        QCoreApplication::processEvents();
        QVERIFY2(spread() > 80, qPrintable(QString::number(spread())));
        QCOMPARE(ReadableHints::readable(light), light); // a theme's own colour is kept
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

    void flowLayoutBreaksRows()
    {
        QWidget window;
        auto *layout = new FlowLayout(&window);
        layout->setSpacing(2);
        layout->setContentsMargins(3, 3, 3, 3);
        for (int i = 0; i < 6; ++i) {
            auto *item = new QWidget(&window);
            item->setFixedSize(20, 10);
            item->setHidden(i == 0); // takes no room
            layout->addWidget(item);
        }
        QCOMPARE(layout->sizeHint(), QSize(114, 16));
        // all in one row, a pixel short, three and two, one a row, narrower than an item
        for (const auto &[width, height] : {std::pair(114, 16), {113, 28}, {70, 28}, {30, 64}, {5, 64}}) {
            QCOMPARE(layout->heightForWidth(width), height);
            layout->setGeometry({0, 0, width, height});
            QCOMPARE(layout->itemAt(5)->geometry().bottom(), height - 3 - 1);
        }
    }

    void pointsTheOtherWayWhereTextDoes()
    {
        const auto arrows = [](Qt::LayoutDirection direction) {
            QApplication::setLayoutDirection(direction);
            QList<QImage> images;
            NumberStepper stepper;
            ExpandableSection section("Attributes");
            for (const QToolButton *button :
                 stepper.findChildren<QToolButton *>() + section.findChildren<QToolButton *>())
                images.append(button->icon().pixmap(16).toImage());
            return images;
        };
        const QList<QImage> usual = arrows(Qt::LeftToRight);
        const QList<QImage> mirrored = arrows(Qt::RightToLeft);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QVERIFY(usual[0] != usual[1]);
        QCOMPARE(mirrored, QList<QImage>({usual[1], usual[0], usual[0]})); // which is "<"
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
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            ScrollBar bar(orientation);
            QStringList heard;
            connect(&bar, &ScrollBar::add, this, [&](Quenmora::Position end) { heard += QString("add %1").arg(end); });
            connect(&bar, &ScrollBar::remove, this,
                    [&](Quenmora::Position end) { heard += QString("remove %1").arg(end); });
            const auto buttons = bar.findChildren<QToolButton *>(); // from the beginning to the end
            for (QToolButton *button : buttons)
                button->click();
            bar.setRemoveEnabled(false);
            buttons[1]->click();
            QCOMPARE(heard, QStringList({"add 0", "remove 0", "remove 1", "add 1"}));
            QCOMPARE(buttons[1]->accessibleName(),
                     orientation == Qt::Horizontal ? "Remove the column on the left" : "Remove the row at the top");
        }
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

    void sectionHidesItsContentWhileCollapsed()
    {
        ExpandableSection section("Attributes");
        auto *content = new QLabel("content");
        section.setContent(content);
        for (const bool expanded : {false, true, false}) {
            QCOMPARE(content->isVisibleTo(&section), expanded);
            section.findChild<QToolButton *>()->click();
        }
    }
};

QUENMORA_TEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
