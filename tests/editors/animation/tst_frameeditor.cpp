#include "editors/animation/frameeditorwidget.h"

#include "editors/canvas/dragdata.h"
#include "model/spriteanim.h"
#include "model/tileanimation.h"

#include "support/testmain.h"

#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <memory>

using AnimationEditor::FrameEditorWidget;

namespace {

/// A block of 3×2 cells and two frames in an editor whose cells are 32 pixels wide.
struct Fixture
{
    TileAnimation block;
    FrameEditorWidget editor;

    Fixture()
    {
        block.setSize({3, 2});
        block.addFrame();
        block.addFrame();
        editor.setZoom(4);
        editor.setAnimation(&block);
        editor.show();
    }
    QPoint at(int column, int row) const { return editor.cellRect({column, row}).center(); }
    AnimationFrame::Cell cell(int row, int column, int frame = 0) const
    {
        return block.frame(frame)->cell(row, column);
    }
};

struct DropResult
{
    bool entered;
    bool dropped;
    QPoint target; ///< while the drag was over it
};

DropResult drop(FrameEditorWidget &editor, QPoint position, std::unique_ptr<QMimeData> data)
{
    DropResult result;
    QDragEnterEvent enter(position, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&editor, &enter);
    result.entered = enter.isAccepted();
    QDragMoveEvent move(position, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    move.ignore();
    QApplication::sendEvent(&editor, &move);
    result.target = editor.dropTarget();
    QDropEvent dropped(position, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    dropped.ignore();
    QApplication::sendEvent(&editor, &dropped);
    result.dropped = dropped.isAccepted();
    return result;
}

std::unique_ptr<QMimeData> tile(int index, int offset)
{
    return std::unique_ptr<QMimeData>(TileDrag{index, offset}.toMimeData());
}

std::unique_ptr<QMimeData> sprite(int index)
{
    return std::unique_ptr<QMimeData>(SpriteDrag{index}.toMimeData());
}

} // namespace

class TestFrameEditor : public QObject
{
    Q_OBJECT

private slots:
    void settersChangeTheSelectedCellOfTheCurrentFrame();
    void contextMenuShowsAndSetsTheFlags();
    void toolTipDescribesTheCell();
    void arrowKeysMoveTheSelection();
    void dropsTilesAndSelectsThem();
    void paintsCellsAndMarks();
    void animationMayDieDuringADrag();
    void sizeFollowsZoomAndAnimation();
    void releaseSelectsTheCellUnderIt();
    void refusesWhatDoesNotFit();
};

void TestFrameEditor::settersChangeTheSelectedCellOfTheCurrentFrame()
{
    Fixture f;
    f.editor.setRotated(true); // no cell is selected
    QCOMPARE(f.cell(0, 0), AnimationFrame::Cell());
    f.editor.setCurrentFrame(1);
    f.editor.setSelectedCell({2, 1});
    f.editor.setRotated(true);
    f.editor.setFlipped(true);
    f.editor.setOffset(5);
    f.editor.setIndex(9);
    QCOMPARE(f.cell(1, 2, 1), (AnimationFrame::Cell{9, 5, true, false, true}));
    QCOMPARE(f.cell(1, 2, 0), AnimationFrame::Cell());

    TileAnimation empty;
    f.editor.setAnimation(&empty); // without frames
    f.editor.setSelectedCell({0, 0});
    f.editor.setRotated(true);
    QCOMPARE(empty.frameCount(), 0);
}

void TestFrameEditor::contextMenuShowsAndSetsTheFlags()
{
    Fixture f;
    f.block.frame(0)->setFlip(1, 1, true);
    QMenu &menu = *f.editor.contextMenu();
    QTest::mouseClick(&f.editor, Qt::RightButton, Qt::NoModifier, f.at(1, 1));
    QVERIFY(menu.isVisible());
    QCOMPARE(menu.title(), "Frame");
    QStringList entries;
    for (const QAction *action : menu.actions())
        entries += action->text() + (action->isChecked() ? "+" : "-");
    QCOMPARE(entries, QStringList({"Rotated-", "Flipped+", "Mirrored-"}));
    for (QAction *action : menu.actions())
        action->trigger();
    menu.close();
    QCOMPARE(f.cell(1, 1), (AnimationFrame::Cell{0, 0, false, true, true}));
}

void TestFrameEditor::toolTipDescribesTheCell()
{
    Fixture f;
    f.block.frame(0)->setCells({{{}, {7, 3, true, false, true}, {}}, {{}, {}, {}}});
    QHelpEvent over(QEvent::ToolTip, f.at(1, 0), f.editor.mapToGlobal(f.at(1, 0)));
    QApplication::sendEvent(&f.editor, &over);
    QCOMPARE(QToolTip::text(), "Index:\t7\nOffset:\t3\nFlip\tYes\nMirror:\tNo\nRotate:\tYes");
    QHelpEvent outside(QEvent::ToolTip, {200, 200}, f.editor.mapToGlobal(QPoint(200, 200)));
    QApplication::sendEvent(&f.editor, &outside);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestFrameEditor::arrowKeysMoveTheSelection()
{
    Fixture f;
    const QSignalSpy activated(&f.editor, &FrameEditorWidget::cellActivated);
    for (const int key : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down,
                          Qt::Key_Left, Qt::Key_Return})
        QTest::keyClick(&f.editor, Qt::Key(key));
    QCOMPARE(f.editor.selectedCell(), QPoint(1, 1));
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.first().first().toPoint(), QPoint(1, 1));
}

void TestFrameEditor::dropsTilesAndSelectsThem()
{
    Fixture f;
    f.editor.setCurrentFrame(1);
    f.block.frame(1)->setMirror(1, 2, true);
    const QSignalSpy selection(&f.editor, &FrameEditorWidget::selectedCellChanged);
    const DropResult result = drop(f.editor, f.at(2, 1), tile(7, 3));
    QVERIFY(result.entered && result.dropped);
    QCOMPARE(result.target, QPoint(2, 1));
    QCOMPARE(f.editor.dropTarget(), FrameEditorWidget::NoCell);
    QCOMPARE(f.cell(1, 2, 1), (AnimationFrame::Cell{7, 3, false, true, false}));
    QCOMPARE(f.editor.selectedCell(), QPoint(2, 1));
    QCOMPARE(selection.count(), 1);
}

void TestFrameEditor::paintsCellsAndMarks()
{
    Fixture f;
    f.block.frame(1)->setIndex(1, 0, 1);
    f.editor.setCellRenderer([](const AnimationFrame::Cell &cell) {
        QImage picture(1, 1, QImage::Format_RGB32);
        picture.fill(Qt::red);
        return cell.index == 1 ? picture : QImage();
    });
    f.editor.setCurrentFrame(1);
    f.editor.setSelectedCell({1, 0});
    const QImage seen = f.editor.grab().toImage();
    QCOMPARE(seen.pixelColor(5, 5), QColor(Qt::black));
    QCOMPARE(seen.pixelColor(0, 32), QColor(Qt::red));
    QCOMPARE(seen.pixelColor(32, 63), QColor(Qt::black));
    QCOMPARE(seen.pixelColor(32 + 16, 2), QColor(127, 127, 127));
    f.editor.setAnimation(nullptr);
    QCOMPARE(f.editor.grab().toImage().pixelColor(5, 5), QColor(Qt::darkGray));
}

void TestFrameEditor::animationMayDieDuringADrag()
{
    FrameEditorWidget editor;
    auto block = std::make_unique<TileAnimation>();
    block->addFrame();
    editor.setAnimation(block.get());
    const auto data = tile(1, 0);
    QDragEnterEvent enter(QPoint(3, 3), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&editor, &enter);
    QDragMoveEvent move(QPoint(3, 3), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&editor, &move);
    QCOMPARE(editor.dropTarget(), QPoint(0, 0));
    block.reset();
    QCOMPARE(editor.dropTarget(), FrameEditorWidget::NoCell);
    QVERIFY(!drop(editor, {3, 3}, tile(1, 0)).dropped);
    editor.grab();
}

void TestFrameEditor::sizeFollowsZoomAndAnimation()
{
    Fixture f;
    f.editor.setZoom(32);
    f.editor.zoomIn();
    f.editor.zoomIn();
    QCOMPARE(f.editor.size(), QSize(3, 2) * 8 * 64);
    f.editor.setZoom(2);
    f.editor.zoomOut();
    f.editor.zoomOut();
    QCOMPARE(f.editor.size(), QSize(24, 16));
    f.editor.setSelectedCell({2, 1});
    const QSignalSpy selection(&f.editor, &FrameEditorWidget::selectedCellChanged);
    f.block.setWidth(2);
    QCOMPARE(f.editor.size(), QSize(16, 16));
    QCOMPARE(selection, (QList<QVariantList>{{FrameEditorWidget::NoCell}}));
    f.editor.setAnimation(nullptr);
    QCOMPARE(f.editor.sizeHint(), QSize(8, 8));

    SpriteAnim walk;
    f.editor.setAnimation(&walk);
    QCOMPARE(f.editor.sizeHint(), QSize(16, 16));
    QVERIFY(!drop(f.editor, {5, 5}, tile(1, 0)).entered);
    QVERIFY(drop(f.editor, {5, 5}, sprite(12)).dropped);
    QCOMPARE(walk.frame(0)->cell(0, 0).index, 12);
}

void TestFrameEditor::releaseSelectsTheCellUnderIt()
{
    const QPoint none = FrameEditorWidget::NoCell;
    for (const auto &[position, cell] : {std::pair(QPoint(0, 1), QPoint(0, 0)),
                                         {{31, 31}, {0, 0}},
                                         {{32, 32}, {1, 1}},
                                         {{96, 0}, none},
                                         {{0, 64}, none},
                                         {{-1, 0}, none}}) {
        Fixture f;
        QSignalSpy selection(&f.editor, &FrameEditorWidget::selectedCellChanged);
        QTest::mouseRelease(&f.editor, Qt::LeftButton, Qt::NoModifier, position);
        QCOMPARE(f.editor.selectedCell(), cell);
        QCOMPARE(selection, cell == none ? QList<QVariantList>() : (QList<QVariantList>{{cell}}));
    }
}

void TestFrameEditor::refusesWhatDoesNotFit()
{
    struct Dragged
    {
        QString type;
        QByteArray hex;
        QPoint position{40, 40};
        bool entered = true;
    };
    const QString tiles("quenmora/tile-drag-anim");
    const QByteArray good("0000000700000003");
    const Dragged drags[] = {{"quenmora/sprite-drag-anim", "00000007", {40, 40}, false},
                             {"text/plain", good, {40, 40}, false},
                             {tiles, good, {200, 10}}, // outside
                             {tiles, good.chopped(2)},
                             {tiles, "ffffffff00000003"},
                             {tiles, "0000001000000003"}, // beyond the last tile
                             {tiles, "0000000700000010"}}; // beyond the last offset
    for (const Dragged &dragged : drags) {
        Fixture f;
        f.editor.setIndexCount(16);
        const auto before = f.block.state();
        auto data = std::make_unique<QMimeData>();
        data->setData(dragged.type, QByteArray::fromHex(dragged.hex));
        const DropResult result = drop(f.editor, dragged.position, std::move(data));
        QCOMPARE(result.entered, dragged.entered);
        QVERIFY(!result.dropped);
        QCOMPARE(f.editor.dropTarget(), FrameEditorWidget::NoCell);
        QCOMPARE(f.editor.selectedCell(), FrameEditorWidget::NoCell);
        QVERIFY(f.block.state() == before);
    }
}

QUENMORA_TEST_MAIN(TestFrameEditor)
#include "tst_frameeditor.moc"
