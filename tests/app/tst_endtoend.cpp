// The main job from one end to the other, in the real window: from a picture to a level on the Next.

#include "app/mainwindow.h"
#include "app/menus/editmenu.h"
#include "app/menus/filemenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/palettemenu.h"
#include "app/menus/tilemenu.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/maptoolpalette.h"
#include "model/map.h"
#include "support/canvasmouse.h"
#include "support/editorinput.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QMenu>
#include <QPainter>
#include <QTest>
#include <QUndoStack>

#include <optional>

namespace {

constexpr QSize LevelSize(16, 12); // in cells
enum Kind { Sky, Gold, Earth };

/// What the picture shows in a cell.
Kind kindAt(QPoint cell)
{
    return cell.y() >= 10 ? Earth : QRect(4, 3, 6, 2).contains(cell) ? Gold : Sky;
}

/// A level with a tile of each kind, each in a colour of its own.
QImage levelPicture()
{
    QImage picture(LevelSize * 8, QImage::Format_RGB32);
    QPainter painter(&picture);
    const QColor colours[] = {QColor(0, 96, 224), QColor(224, 192, 0), QColor(0, 160, 32)};
    for (int y = 0; y < LevelSize.height(); ++y) {
        for (int x = 0; x < LevelSize.width(); ++x)
            painter.fillRect(x * 8, y * 8, 8, 8, colours[kindAt({x, y})]);
    }
    return picture;
}

void drag(QWidget *widget, QPoint from, QPoint to)
{
    QTest::mouseMove(widget, from);
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(widget, (from + to) / 2);
    QTest::mouseMove(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

} // namespace

class TestEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Update::UpdateChecker::setFeedAddress({});
        m_window.emplace();
        m_window->projectController()->setFileNameCallback([this] { return m_folder("game.quenmora"); });
        m_window->menus()->setFileChooser([this](const FileRequest &request, QWidget *) {
            const QString name = request.title.contains("Import") ? "level.png" : request.title + request.defaultSuffix;
            return m_folder(name);
        });
    }

    void makesALevelOfAPicture()
    {
        emit m_window->menus()->fileMenu()->newProject("Game");
        QVERIFY(levelPicture().save(m_folder("level.png")));
        m_window->menus()->mapMenu()->showImportDialog();
        QVERIFY(page() && page()->map()->size() == LevelSize);
        page()->grid()->fitTo();
        QCoreApplication::processEvents();

        const QByteArray imported = content();
        editMap();
        const QByteArray edited = content();
        QVERIFY(edited != imported);
        QUndoGroup *undo = m_window->documentController()->undoGroup();
        QCOMPARE(undo->activeStack()->count(), 4);
        undo->activeStack()->setIndex(0);
        QCOMPARE(content(), imported);
        undo->activeStack()->setIndex(4);
        QCOMPARE(content(), edited);

        editTile();
        const QByteArray finished = content();
        emit m_window->menus()->fileMenu()->saveProject();
        QVERIFY(!m_window->projectController()->isModified());
        emit m_window->menus()->fileMenu()->closeProject();
        emit m_window->menus()->fileMenu()->openProject(m_folder("game.quenmora"));
        QCOMPARE(content(), finished);
    }

    void exportsTheLevel()
    {
        m_window->documentController()->setActiveMap(project().maps().first()->id());
        m_window->menus()->mapMenu()->showExportDialog();
        m_window->menus()->paletteMenu()->showExportDialog();
        m_window->menus()->tileMenu()->exportAccepted(1, 3, false);

        const QByteArray map = exported("Export Map Data.map");
        QCOMPARE(map.size(), 2 * LevelSize.width() * LevelSize.height());
        const QRect cut(4, 3, 3, 2);
        for (int cell = 0; cell < LevelSize.width() * LevelSize.height(); ++cell) {
            const QPoint at(cell % LevelSize.width(), cell / LevelSize.width());
            Kind expected = kindAt(at);
            if (QRect(1, 1, 6, 1).contains(at) || QRect(1, 6, 3, 2).contains(at)) // painted, filled
                expected = Earth;
            else if (cut.contains(at))
                expected = Sky;
            else if (cut.translated(7, 3).contains(at)) // pasted
                expected = Gold;
            QVERIFY2(map.at(2 * cell) == char(expected), qPrintable(QString::number(cell)));
            // palette offset, ninth bit of the index; how it is turned is open
            QCOMPARE(map.at(2 * cell + 1) & 0xF1, 0);
        }
        QByteArray earth(64, char(Earth));
        earth[8 + 2] = char(Gold);
        QCOMPARE(exported("Export Tiles.bin"), QByteArray(64, char(Sky)) + QByteArray(64, char(Gold)) + earth);
        // RRRGGGBB and the low bit of blue: 0 3 7, 7 6 0, 0 5 1
        QCOMPARE(exported("Export Palette.pal").left(6), QByteArray("\x0F\x01\xF8\x00\x14\x01", 6));
    }

    void cleanupTestCase() { m_window.reset(); }

private:
    Project &project() { return *m_window->projectController()->project(); }
    QByteArray content() { return m_window->projectController()->store()->fingerprint(); }
    QByteArray exported(const char *name) const { return readFile(m_folder(name)); }
    MapEditor::View *page() { return qobject_cast<MapEditor::View *>(m_window->views().tabs->currentWidget()); }
    QPoint centreOf(QPoint cell) { return page()->grid()->viewport().rectOfCells({cell, QSize(1, 1)}).center(); }
    void dragCells(QPoint from, QPoint to) { drag(page()->grid(), centreOf(from), centreOf(to)); }
    /// Four steps: paint, fill, cut, paste.
    void editMap()
    {
        using enum Quenmora::Ui::ToolButton;
        TilePickerGrid *picker = m_window->views().tilePicker->grid();
        QTest::mouseClick(picker, Qt::LeftButton, Qt::NoModifier, picker->cellRect(Earth).center());
        dragCells({1, 1}, {6, 1});
        page()->toolPalette()->toggleAction(Select);
        dragCells({1, 6}, {3, 7});
        EditorInput::trigger(*page()->grid()->findChild<QMenu *>(), "Fill");
        page()->toolPalette()->toggleAction(Select);
        dragCells({4, 3}, {6, 4}); // half of the gold
        emit m_window->menus()->editMenu()->cut();
        emit m_window->menus()->editMenu()->paste();
        dragCells({12, 7}, {12, 7}); // in the middle of where it comes to lie
    }

    /// One pixel of the second row of the earth becomes gold.
    void editTile()
    {
        TileWindow *editor = m_window->views().tileEditor;
        editor->setTileIndex(Earth + 1);
        editor->canvas()->setInk(Gold);
        editor->canvas()->setMode(Quenmora::Ui::Draw);
        EditorInput::Mouse{*editor->canvas()}.drag({{2, 1}});
    }

    TemporaryFolder m_folder;
    std::optional<MainWindow> m_window;
};

QUENMORA_TEST_MAIN(TestEndToEnd)
#include "tst_endtoend.moc"
