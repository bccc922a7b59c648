#include "editors/animation/frameeditorwidget.h"

#include "editors/common/dragdata.h"
#include "model/spriteanim.h"
#include "model/tileanimation.h"

#include "support/editorinput.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QToolTip>

#include <memory>

using AnimationEditor::FrameEditorWidget;
using Cell = AnimationFrame::Cell;

namespace {

constexpr QPoint None = FrameEditorWidget::NoCell;

/// A block of 3×2 cells and two frames in an editor whose cells are 32 pixels wide.
struct Fixture
{
    std::unique_ptr<TileAnimation> block = std::make_unique<TileAnimation>();
    FrameEditorWidget editor;

    Fixture()
    {
        block->setSize({3, 2});
        block->addFrame();
        block->addFrame();
        editor.setZoom(4);
        editor.setAnimation(block.get());
        editor.show();
    }
    bool drop(const QMimeData &data, QPoint position, const std::function<void()> &over = {})
    {
        return EditorInput::drop(editor, position, position, data, Qt::NoModifier, over);
    }
    QPoint at(int column, int row) const { return editor.cellRect({column, row}).center(); }
    Cell cell(int row, int column, int frame = 0) const { return block->frame(frame)->cell(row, column); }
};

} // namespace

class TestFrameEditor : public QObject
{
    Q_OBJECT

private slots:
    void menuAndToolTipShowTheCell()
    {
        Fixture f;
        f.block->frame(1)->setCells({{{}, {7, 3, true, false, true}, {}}, {{}, {}, {}}});
        f.editor.setCurrentFrame(1);
        f.editor.setRotated(true); // no cell is selected
        QHelpEvent inside(QEvent::ToolTip, f.at(1, 0), {});
        QApplication::sendEvent(&f.editor, &inside);
        QCOMPARE(QToolTip::text(), "Index:\t7\nOffset:\t3\nFlip\tYes\nMirror:\tNo\nRotate:\tYes");
        QMenu &menu = *f.editor.contextMenu();
        QTest::mouseClick(&f.editor, Qt::RightButton, Qt::NoModifier, f.at(1, 0));
        QVERIFY(menu.isVisible());
        QStringList entries(menu.title());
        for (QAction *action : menu.actions()) {
            entries += action->text() + (action->isChecked() ? "+" : "-");
            action->trigger();
        }
        menu.close();
        QCOMPARE(entries, QStringList({"Frame", "Rotated+", "Flipped+", "Mirrored-"}));
        QVERIFY(f.cell(0, 1, 1) == (Cell{7, 3, false, true, false}) && f.cell(0, 1, 0) == Cell());
        QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(&f.editor, &byKey);
        QVERIFY(menu.isVisible() && !menu.actions().first()->isChecked());
        menu.close();

        TileAnimation empty;
        f.editor.setAnimation(&empty); // without frames
        f.editor.setSelectedCell({0, 0});
        f.editor.setRotated(true);
    }

    void paintsCellsMarksAndTheFrameBefore()
    {
        Fixture f;
        f.editor.setCellRenderer([](const Cell &cell) {
            QImage picture(1, 1, QImage::Format_RGB32);
            picture.fill(cell.index == 1 ? Qt::white : Qt::black);
            return cell.index == 2 ? QImage() : picture;
        });
        f.block->frame(0)->setIndex(0, 1, 1);
        f.block->frame(1)->setIndex(0, 2, 2);
        f.editor.setSelectedCell({0, 0});
        const auto shown = [&f](int x) { return f.editor.grab().toImage().pixelColor(x, 2).red(); };
        f.editor.setOnionSkin(true);
        QCOMPARE(shown(48), 255); // there is no frame before
        QCOMPARE(shown(16), 127); // the mark
        f.editor.setCurrentFrame(1);
        QVERIFY(std::abs(shown(48) - 89) <= 1); // 35 %
        f.editor.setOnionSkin(false);
        QCOMPARE(shown(48), 0);
        f.editor.setAnimation(nullptr);
        QCOMPARE(f.editor.grab().toImage().pixelColor(5, 5), QColor(Qt::darkGray));
    }

    void sizeFollowsZoomAndAnimation()
    {
        Fixture f;
        for (int i = 0; i < 5; ++i) // 4, 8, 16, 32, 64 and no further
            EditorInput::zoomByWheel(f.editor, 120);
        QCOMPARE(f.editor.size(), QSize(3, 2) * 8 * 64);
        for (int i = 0; i < 7; ++i)
            EditorInput::zoomByWheel(f.editor, -120);
        f.editor.setSelectedCell({2, 1});
        f.block->setWidth(2);
        QCOMPARE(f.editor.size(), QSize(16, 16));
        QVERIFY(!f.editor.selectedCellContent());
    }

    void selectsByMouseAndKeys()
    {
        Fixture f;
        const QSignalSpy selection(&f.editor, &FrameEditorWidget::selectedCellChanged);
        for (const QPoint point : {QPoint(31, 31), {32, 32}, {96, 0}, {0, 64}, {-1, 0}})
            QTest::mouseRelease(&f.editor, Qt::LeftButton, Qt::NoModifier, point);
        QCOMPARE(selection, (QList<QVariantList>{{QPoint(0, 0)}, {QPoint(1, 1)}}));
        f.editor.setSelectedCell(None);
        const QSignalSpy activated(&f.editor, &FrameEditorWidget::cellActivated);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right,
                                  Qt::Key_Down, Qt::Key_Left, Qt::Key_Return})
            QTest::keyClick(&f.editor, key);
        QCOMPARE(activated, (QList<QVariantList>{{QPoint(1, 1)}}));
    }

    void takesWhatFits()
    {
        const QString tiles("quenmora/tile-drag-anim");
        constexpr auto good = "0000000700000003";
        constexpr QPoint Nowhere(-9, -9);
        // the type, the bytes, what is the target while the drag is over the widget, and whether it is dropped
        const std::tuple<QString, const char *, QPoint, bool> drags[] = {
            {tiles, good, {2, 1}, true},
            {tiles, good, None, false}, // outside
            {"quenmora/sprite-drag-anim", "00000007", Nowhere, false},
            {"text/plain", good, Nowhere, false},
            {tiles, "00000007000000", {2, 1}, false},
            {tiles, "ffffffff00000003", {2, 1}, false},
            {tiles, "0000001000000003", {2, 1}, false}, // beyond the last tile
            {tiles, "0000000700000010", {2, 1}, false}}; // beyond the last offset
        for (const auto &[type, hex, over, dropped] : drags) {
            Fixture f;
            f.editor.setIndexCount(16);
            f.editor.setCurrentFrame(1);
            f.block->frame(1)->setMirror(1, 2, true);
            QMimeData data;
            data.setData(type, QByteArray::fromHex(hex));
            QPoint target = Nowhere;
            const QPoint position = over == None ? QPoint(200, 10) : f.at(2, 1);
            QCOMPARE(f.drop(data, position, [&] { target = f.editor.dropTarget(); }), dropped);
            QVERIFY(target == over && f.editor.dropTarget() == None);
            QCOMPARE(f.editor.selectedCellContent().has_value(), dropped);
            QCOMPARE(f.cell(1, 2, 1), (dropped ? Cell{7, 3, false, true, false} : Cell{0, 0, false, true, false}));
        }

        Fixture f;
        SpriteAnim walk;
        f.editor.setAnimation(&walk);
        QVERIFY(!f.drop(*std::unique_ptr<QMimeData>(TileDrag{1, 0}.toMimeData()), {5, 5}));
        const auto leave = [&f] {
            const QImage marked = f.editor.grab().toImage();
            QDragLeaveEvent event;
            QApplication::sendEvent(&f.editor, &event);
            QVERIFY(f.editor.grab().toImage() != marked);
        };
        const std::unique_ptr<QMimeData> sprite(SpriteDrag{12}.toMimeData());
        QVERIFY(!f.drop(*sprite, {5, 5}, leave));
        QVERIFY(f.drop(*sprite, {5, 5}));
        QCOMPARE(walk.frame(0)->cell(0, 0).index, 12);
    }

    void animationMayDieDuringADrag()
    {
        Fixture f;
        const std::unique_ptr<QMimeData> data(TileDrag{1, 0}.toMimeData());
        QVERIFY(!f.drop(*data, {3, 3}, [&] { f.block.reset(); }));
        QCOMPARE(f.editor.dropTarget(), None);
        f.editor.grab();
    }
};

QUENMORA_TEST_MAIN(TestFrameEditor)
#include "tst_frameeditor.moc"
