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
#include <QTest>
#include <QToolButton>

using namespace Quenmora::Ui;

/// The small widgets of the kit.
class TestWidgets : public QObject
{
    Q_OBJECT

private slots:
    void popoverFindsRoom_data()
    {
        QTest::addColumn<QRect>("target");
        QTest::addColumn<DialogPosition>("wanted");
        QTest::addColumn<QPoint>("corner");
        QTest::addColumn<DialogPosition>("position");
        // a popover of 100 x 50 on a screen that starts at (10, 20) and measures 400 x 300
        QTest::newRow("right") << QRect(100, 100, 20, 10) << RightOf << QPoint(120, 79) << RightOf;
        QTest::newRow("no room on the right") << QRect(300, 100, 20, 10) << RightOf << QPoint(200, 79) << LeftOf;
        QTest::newRow("just room on the right") << QRect(290, 100, 20, 10) << RightOf << QPoint(310, 79) << RightOf;
        QTest::newRow("no room above") << QRect(100, 60, 20, 10) << Above << QPoint(59, 70) << Below;
        QTest::newRow("too high up") << QRect(100, 20, 20, 10) << RightOf << QPoint(120, 20) << RightOf;
        QTest::newRow("too far down") << QRect(100, 310, 20, 10) << RightOf << QPoint(120, 270) << RightOf;
        QTest::newRow("none on either side") << QRect(50, 100, 300, 10) << LeftOf << QPoint(10, 79) << LeftOf;
    }

    void popoverFindsRoom()
    {
        QFETCH(const QRect, target);
        QFETCH(DialogPosition, wanted);
        QTEST(Popover::place({100, 50}, target, {10, 20, 400, 300}, wanted), "corner");
        QTEST(wanted, "position");
    }

    void outlineIsSeenOnEveryGround()
    {
        constexpr QRect area(5, 3, 40, 30);
        for (const QColor ground : {Qt::black, Qt::white, Qt::gray}) {
            QImage image(50, 40, QImage::Format_RGB32);
            image.fill(ground);
            QPainter painter(&image);
            paintOutline(painter, area);
            painter.end();
            const auto seen = [&](QPoint pixel) {
                return std::abs(qGray(image.pixel(pixel)) - qGray(ground.rgb())) > 100;
            };
            // within any eight pixels along a side it differs from the ground; inside and around it nothing changed
            for (const QPoint corner : {area.topLeft(), QPoint(5, 32), QPoint(44, 3)}) {
                const bool down = corner.x() > 5;
                for (int at = 0; at + 8 <= (down ? area.height() : area.width()); ++at) {
                    int count = 0;
                    for (int i = at; i < at + 8; ++i)
                        count += seen(corner + (down ? QPoint(0, i) : QPoint(i, 0)));
                    QVERIFY2(count >= 3, qPrintable(QDebug::toString(corner) + QString::number(at)));
                }
            }
            QVERIFY(!seen({7, 5}) && !seen({4, 3}) && !seen({45, 32}));
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
        DockWidget dock("Dock", "Nothing here");
        dock.resize(200, 100);
        const auto spread = [&dock] {
            const QImage shown = dock.findChild<QLabel *>()->grab().toImage();
            int darkest = 255;
            int lightest = 0;
            for (int i = 0; i < shown.width() * shown.height(); ++i) {
                const int grey = qGray(shown.pixel(i % shown.width(), i / shown.width()));
                darkest = std::min(darkest, grey);
                lightest = std::max(lightest, grey);
            }
            return lightest - darkest;
        };
        QVERIFY2(spread() > 80, qPrintable(QString::number(spread())));
        QApplication::setPalette(light); // while it runs
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

    void stepperStaysInItsRange()
    {
        NumberStepper stepper;
        const QSignalSpy changed(&stepper, &NumberStepper::valueChanged);
        const auto buttons = stepper.findChildren<QToolButton *>(); // back and forward
        stepper.setRange(1, 3);
        for (const int button : {1, 1, 1, 0})
            buttons[button]->click();
        stepper.setRange(1, 1);
        QCOMPARE(changed, (QList<QVariantList>{{2}, {3}, {2}, {1}}));
        QVERIFY(!buttons[0]->isEnabled() && !buttons[1]->isEnabled());
    }

    void scrollBarButtonsNameTheirEnd()
    {
        const QList<QStringList> heard{{"Add a column on the left: add 0", "Remove the column on the left: remove 0",
                                        "Remove the column on the right: remove 1", "Add a column on the right: add 1"},
                                       {"Add a row at the top: add 0", "Remove the row at the top: remove 0",
                                        "Remove the row at the bottom: remove 1", "Add a row at the bottom: add 1"}};
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            ScrollBar bar(orientation);
            const auto buttons = bar.findChildren<QToolButton *>(); // from the beginning to the end
            QStringList clicks;
            const auto hear = [&clicks](const QString &what) {
                return [&clicks, what](Quenmora::Position end) { clicks.last() += what + QString::number(end); };
            };
            connect(&bar, &ScrollBar::add, this, hear(": add "));
            connect(&bar, &ScrollBar::remove, this, hear(": remove "));
            for (QToolButton *button : buttons) {
                clicks += button->accessibleName();
                button->click();
            }
            bar.setRemoveEnabled(false);
            buttons[1]->click();
            QCOMPARE(clicks, heard[orientation == Qt::Vertical]);
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
