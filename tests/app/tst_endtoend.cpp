// The main job from one end to the other, in the real window: from a picture to a level on the Next.

#include "app/documentcontroller.h"
#include "app/documenttabview.h"
#include "app/mainwindow.h"
#include "app/menus/editmenu.h"
#include "app/menus/filemenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/palettemenu.h"
#include "app/menus/tilemenu.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/maptoolpalette.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/archivetools.h"
#include "support/testmain.h"
#include "ui/messagedialog.h"

#include <QApplication>
#include <QListView>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoGroup>

#include <optional>

namespace {

constexpr QSize LevelSize(16, 12); // in cells
enum Kind { Sky, Gold, Earth, Bricks };

/// What the picture shows in a cell.
Kind kindAt(QPoint cell)
{
    if (cell.y() == 11)
        return Bricks;
    if (cell.y() == 10)
        return Earth;
    return QRect(4, 3, 6, 2).contains(cell) ? Gold : Sky;
}

/// A level with four kinds of tiles, in four colours.
QImage levelPicture()
{
    QImage picture(LevelSize * 8, QImage::Format_RGB32);
    QPainter painter(&picture);
    const QColor colours[] = {QColor(0, 96, 224), QColor(224, 192, 0), QColor(0, 160, 32), QColor(160, 64, 0)};
    for (int y = 0; y < LevelSize.height(); ++y) {
        for (int x = 0; x < LevelSize.width(); ++x) {
            painter.fillRect(x * 8, y * 8, 8, 8, colours[kindAt({x, y})]);
            if (kindAt({x, y}) == Bricks)
                painter.fillRect(x * 8 + 1, y * 8 + 2, 4, 1, colours[Earth]); // looks different however it is turned
        }
    }
    return picture;
}

void mouse(QWidget *widget, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void drag(QWidget *widget, QPoint from, QPoint to)
{
    mouse(widget, QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
    mouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    mouse(widget, QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
    mouse(widget, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    mouse(widget, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}

} // namespace

class TestEndToEnd : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Update::UpdateChecker::setFeedAddress({}); }
    void makesALevelOfAPicture();
    void cleanupTestCase() { m_window.reset(); }

private:
    Project &project() { return *m_window->projectController()->project(); }
    QByteArray content() { return m_window->projectController()->store()->fingerprint(); }
    MapEditor::View *page() { return qobject_cast<MapEditor::View *>(m_window->views().tabs->currentWidget()); }
    QPoint centreOf(QPoint cell) { return page()->grid()->viewport().rectOfCells({cell, QSize(1, 1)}).center(); }
    void dragCells(QPoint from, QPoint to) { drag(page()->grid(), centreOf(from), centreOf(to)); }

    void importPicture();
    void editMap();
    void editTile();
    void exportAll();
    void checkMap();
    void checkTiles();
    void checkPalette();

    QTemporaryDir m_folder;
    std::optional<MainWindow> m_window;
};

void TestEndToEnd::makesALevelOfAPicture()
{
    m_window.emplace();
    m_window->projectController()->setFileNameCallback([this] { return m_folder.filePath("game.quenmora"); });
    m_window->menus()->setFileChooser([this](const FileRequest &request, QWidget *) {
        const QString name = request.title.contains("Import") ? "level.png"
            : request.title.contains("Palette")               ? "level.npl"
            : request.title.contains("Map")                   ? "level.map"
                                                              : "tiles.bin";
        return m_folder.filePath(name);
    });
    emit m_window->menus()->fileMenu()->newProject("Game");
    importPicture();
    if (QTest::currentTestFailed())
        return;
    const QByteArray imported = content();
    editMap();
    const QByteArray edited = content();
    QVERIFY(edited != imported);

    QUndoGroup *undo = m_window->documentController()->undoGroup();
    QCOMPARE(undo->activeStack()->count(), 5);
    for (int step = 0; step < 5; ++step)
        undo->undo();
    QVERIFY(!undo->canUndo());
    QCOMPARE(content(), imported);
    for (int step = 0; step < 5; ++step)
        undo->redo();
    QCOMPARE(content(), edited);

    editTile();
    const QByteArray finished = content();
    emit m_window->menus()->fileMenu()->saveProject();
    QVERIFY(!m_window->projectController()->isModified());
    emit m_window->menus()->fileMenu()->closeProject();
    QVERIFY(!m_window->projectController()->project());
    emit m_window->menus()->fileMenu()->openProject(m_folder.filePath("game.quenmora"));
    QCOMPARE(content(), finished);
    exportAll();
    QVERIFY(!m_window->findChild<MessageDialog *>() || !m_window->messageDialog()->isVisible());
    checkMap();
    checkTiles();
    checkPalette();
}

void TestEndToEnd::importPicture()
{
    QVERIFY(levelPicture().save(m_folder.filePath("level.png")));
    m_window->menus()->mapMenu()->showImportDialog();
    QCOMPARE(project().maps().size(), 1);
    QCOMPARE(project().maps().first()->size(), LevelSize);
    QVERIFY(page() && page()->map() == project().maps().first());
    project().createSpriteBank(Quenmora::EightBit, "Hero", project().palettes().first()->id());
    page()->grid()->fitTo();
    QCoreApplication::processEvents();
}

/// Five steps: paint, fill, cut, paste, place a sprite.
void TestEndToEnd::editMap()
{
    TilePickerGrid *picker = m_window->views().tilePicker->grid();
    drag(picker, picker->cellRect(Earth).center(), picker->cellRect(Earth).center());
    QCOMPARE(page()->grid()->currentTileIndex(), int(Earth));
    dragCells({1, 1}, {6, 1});

    using enum Quenmora::Ui::ToolButton;
    page()->toolPalette()->toggleAction(Select);
    dragCells({1, 6}, {3, 7});
    const QList<QAction *> menu = page()->grid()->findChild<QMenu *>()->actions();
    QCOMPARE(menu.last()->text(), "Fill");
    menu.last()->trigger();

    EditMenu *edit = m_window->menus()->editMenu();
    page()->toolPalette()->toggleAction(Select);
    dragCells({4, 3}, {6, 4}); // half of the gold
    emit edit->cut();
    emit edit->paste();
    dragCells({12, 7}, {12, 7}); // in the middle of where it comes to lie
    page()->toolPalette()->toggleAction(Draw);

    QListView *sprites = nullptr;
    for (QListView *list : m_window->views().mapSprites->findChildren<QListView *>()) {
        if (list->model()->rowCount() == 1)
            sprites = list;
    }
    QVERIFY(sprites);
    sprites->setCurrentIndex(sprites->model()->index(0, 0));
    const QPoint place = centreOf({8, 8});
    drag(page()->grid(), place, place);
    QCOMPARE(page()->map()->sprites().size(), 1);
}

/// One pixel of the second row of the earth becomes gold.
void TestEndToEnd::editTile()
{
    TileWindow *editor = m_window->views().tileEditor;
    editor->setTileIndex(Earth + 1);
    Canvas *canvas = editor->canvas();
    canvas->setInk(Gold);
    canvas->setMode(Quenmora::Ui::Draw);
    const QPoint pixel = canvas->geometryInWidget().pointOf({2, 1}) + QPoint(1, 1);
    drag(canvas, pixel, pixel);
}

void TestEndToEnd::exportAll()
{
    const QPointer<Map> map = project().maps().first();
    m_window->documentController()->setActiveMap(map->id());
    m_window->menus()->mapMenu()->showExportDialog();
    m_window->menus()->paletteMenu()->showExportDialog();
    m_window->menus()->tileMenu()->exportAccepted(1, 4, false);
}

void TestEndToEnd::checkMap()
{
    const QByteArray data = ArchiveTools::fileBytes(m_folder.filePath("level.map"));
    QCOMPARE(data.size(), 2 * LevelSize.width() * LevelSize.height());
    const QRect painted(1, 1, 6, 1);
    const QRect filled(1, 6, 3, 2);
    const QRect cut(4, 3, 3, 2);
    const QRect pasted = cut.translated(7, 3);
    for (int y = 0; y < LevelSize.height(); ++y) {
        for (int x = 0; x < LevelSize.width(); ++x) {
            const QPoint cell(x, y);
            Kind expected = kindAt(cell);
            if (painted.contains(cell) || filled.contains(cell))
                expected = Earth;
            else if (cut.contains(cell))
                expected = Sky;
            else if (pasted.contains(cell))
                expected = Gold;
            const qsizetype at = 2 * (y * LevelSize.width() + x);
            QVERIFY2(data.at(at) == char(expected), qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
            QCOMPARE(data.at(at + 1) & 0xF1, 0); // palette offset, ninth bit of the index
            if (expected == Bricks)
                QCOMPARE(data.at(at + 1), '\0');
        }
    }
}

void TestEndToEnd::checkTiles()
{
    QByteArray earth(64, char(Earth));
    earth[8 + 2] = char(Gold);
    QByteArray bricks(64, char(Bricks));
    bricks.replace(2 * 8 + 1, 4, QByteArray(4, char(Earth)));
    const QByteArray data = ArchiveTools::fileBytes(m_folder.filePath("tiles.bin"));
    QCOMPARE(data, QByteArray(64, char(Sky)) + QByteArray(64, char(Gold)) + earth + bricks);
}

void TestEndToEnd::checkPalette()
{
    const QByteArray data = ArchiveTools::fileBytes(m_folder.filePath("level.npl"));
    // RRRGGGBB and the low bit of blue: 0 3 7, 7 6 0, 0 5 1, 5 2 0
    QCOMPARE(data.left(8), QByteArray("\x0F\x01\xF8\x00\x14\x01\xA8\x00", 8));
}

QUENMORA_TEST_MAIN(TestEndToEnd)
#include "tst_endtoend.moc"
