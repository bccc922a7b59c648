#include "app/menus/mapmenu.h"
#include "app/menus/menubar.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/projectactions.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/archivetools.h"
#include "support/testmain.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPainter>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>

#include <memory>

namespace {

using ArchiveTools::writeFile;
using Node = ProjectTree::ProjectNode;

/// The files of a Next data set of 2 × 2 cells, one block of the tiles 1, 2, 3 and 0.
QHash<QString, QByteArray> nextDataSet()
{
    QByteArray palette(512, '\0');
    palette[2] = '\xE3'; // entry 1
    palette[3] = '\x81';
    const QByteArray tiles = QByteArray(32, '\x12') + QByteArray(32, '\x34');
    QByteArray map(2 + 256, '\0');
    map[0] = map[1] = 2;
    const QByteArray blocks("\1\0\2\0\3\0\0\0", 8);
    return {{"nxp", palette}, {"nxt", tiles}, {"nxm", map}, {"nxb", blocks}};
}

/// A picture of count different tiles in two colours: the frame of each tells its orientation, its number
/// stands inside.
QImage pictureOfTiles(int columns, int rows)
{
    QImage picture(columns * 8, rows * 8, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    for (int number = 0; number < columns * rows; ++number) {
        const QPoint corner(number % columns * 8, number / columns * 8);
        painter.fillRect(QRect(corner, QSize(8, 1)), Qt::white);
        painter.fillRect(QRect(corner, QSize(1, 4)), Qt::white);
        for (int bit = 0; bit < 16; ++bit) {
            if (number & 1 << bit)
                painter.fillRect(QRect(corner + QPoint(2 + bit % 4, 2 + bit / 4), QSize(1, 1)), Qt::white);
        }
    }
    return picture;
}

} // namespace

class TestProjectActions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); } // no window outlives the application

    void nothingHappensWithoutAProject();
    void createsWhatIsAskedFor();
    void createSprites();
    void createMapFromSelection();
    void menusAreServed();

    void copiesAndDeletes_data();
    void copiesAndDeletes();
    void deletionIsRefused_data();
    void deletionIsRefused();
    void spriteMenuIsToldFirst();

    void importsNextData();
    void nextDataFailures_data();
    void nextDataFailures();
    void importsPictureWithItsOrientations();
    void pictureLimit_data();
    void pictureLimit();
    void fileThatIsNoPicture();

    void importedPaletteIsOneUndoStep();
    void importsPaletteOfAPicture_data();
    void importsPaletteOfAPicture();
    void importsANewPalette();
    void paletteFailureIsTold();

    void importsSprites_data();
    void importsSprites();
    void spriteFailureLeavesNothing();

private:
    /// The failure that the message box for imports shows; empty while it is not open.
    [[nodiscard]] QString shownFailure() const;
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    [[nodiscard]] int assetCount() const;
    /// One asset of a kind, with what it needs.
    QUuid make(Node node);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<ProjectActions> m_actions;
};

void TestProjectActions::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_project = std::make_unique<Project>();
    m_window = std::make_unique<QWidget>();
    m_actions = std::make_unique<ProjectActions>([this] { return m_project.get(); }, m_window.get());
}

QString TestProjectActions::shownFailure() const
{
    const auto *box = m_window->findChild<QMessageBox *>();
    if (!box || !box->isVisible())
        return {};
    return box->text() == "Import Incomplete" ? box->informativeText() : "not the box for imports";
}

int TestProjectActions::assetCount() const
{
    return int(m_project->palettes().size() + m_project->tileSets().size() + m_project->maps().size()
               + m_project->blockSets().size() + m_project->spriteBanks().size() + m_project->images().size());
}

QUuid TestProjectActions::make(Node node)
{
    const QUuid palette = m_project->createPalette(CreateAction::DefaultNext, "Main")->id();
    if (node == ProjectTree::PaletteNode)
        return palette;
    if (node == ProjectTree::SpriteBankNode)
        return m_project->createSpriteBank(Quenmora::EightBit, "Hero", palette)->id();
    if (node == ProjectTree::ImageNode)
        return m_project->createImage(Quenmora::LoRes_128x96, "Title", palette)->id();
    const QUuid tiles = m_project->createTileSet("Tiles", palette, 4)->id();
    if (node == ProjectTree::MapNode)
        return m_project->createMap("Level", tiles, {2, 2})->id();
    return node == ProjectTree::TileSetNode ? tiles : m_project->createBlockList("Doors", tiles)->id();
}

// Creating

void TestProjectActions::nothingHappensWithoutAProject()
{
    ProjectActions actions([]() -> Project * { return nullptr; }, m_window.get());
    QSignalSpy ready(&actions, &ProjectActions::mapReady);
    QSignalSpy deleted(&actions, &ProjectActions::itemDeleted);
    actions.createPalette(CreateAction::Blank, "x");
    actions.createTileSet("x", {}, 256, false);
    actions.createMap("x", {}, {40, 32});
    actions.createBlocks("x", {});
    actions.createSprites(SpriteDialog::NewPalette, "x", {});
    actions.createImage("x", Quenmora::LoRes_128x96, {});
    actions.createMapFromSelection({}, {1, 1});
    actions.copyItem(ProjectTree::MapNode, {});
    actions.deleteItem(ProjectTree::MapNode, {});
    actions.importMap("x.nxm");
    actions.importPalette({}, "x.pal");
    actions.importSpritePicture({});
    actions.importSpriteData({});
    QCOMPARE(ready.size() + deleted.size(), 0);
    QCOMPARE(shownFailure(), QString());
}

void TestProjectActions::createsWhatIsAskedFor()
{
    const QUuid palette = make(ProjectTree::PaletteNode);
    QSignalSpy ready(m_actions.get(), &ProjectActions::tileSetReady);
    m_actions->createTileSet("Forest", palette, 256, true);
    m_actions->createTileSet("Cave", {}, 512, false);
    QCOMPARE(ready.size(), 2);
    const QPointer<TileSet> forest = m_project->tileSet(ready[0][0].toUuid());
    QCOMPARE(forest->paletteId(), palette);
    QCOMPARE(forest->count(), 256);
    QVERIFY(forest->hiRes());
    const QPointer<TileSet> cave = m_project->tileSet(ready[1][0].toUuid());
    QCOMPARE(m_project->paletteNames(), QStringList({"Main", "Cave"}));
    QCOMPARE(cave->palette()->name(), "Cave");
    QCOMPARE(cave->palette()->rawColour(255), 0);

    const QUuid tiles = forest->id();
    QSignalSpy map(m_actions.get(), &ProjectActions::mapReady);
    QSignalSpy blocks(m_actions.get(), &ProjectActions::blocksReady);
    m_actions->createMap("Level", tiles, {40, 32});
    m_actions->createBlocks("Doors", tiles);
    m_actions->createImage("Title", Quenmora::Layer2_640x256, m_project->palettes().first()->id());
    QCOMPARE(m_project->map(map.at(0).at(0).toUuid())->size(), QSize(40, 32));
    QCOMPARE(m_project->blocks(blocks.at(0).at(0).toUuid())->tileSet()->id(), tiles);
    QCOMPARE(m_project->images().size(), 1);
    QCOMPARE(m_project->images().first()->mode(), Quenmora::Layer2_640x256);
    QCOMPARE(m_project->images().first()->name(), "Title");
}

void TestProjectActions::createSprites()
{
    const QUuid palette = make(ProjectTree::PaletteNode);
    QSignalSpy ready(m_actions.get(), &ProjectActions::spritesReady);
    for (const int options : {0, 1, 2, 3}) {
        m_actions->createSprites(SpriteDialog::CreateOptions(options), "Hero", palette);
        const QPointer<SpriteBank> bank = m_project->spriteBank(ready.takeFirst().at(0).toUuid());
        QCOMPARE(bank->name(), "Hero");
        QCOMPARE(bank->depth(), options & 1 ? Quenmora::EightBit : Quenmora::FourBit);
        QCOMPARE(bank->palette()->name(), options & 2 ? "Hero" : "Main");
    }
}

void TestProjectActions::createMapFromSelection()
{
    const QPointer<Map> map = m_project->map(make(ProjectTree::MapNode));
    map->setTile({1, 1}, {.index = 3, .used = true});
    QGuiApplication::clipboard()->setMimeData(map->tileLayer()->toMimeData({1, 1, 1, 1}));
    QSignalSpy ready(m_actions.get(), &ProjectActions::mapReady);
    m_actions->createMapFromSelection(map->id(), {1, 1});
    m_actions->createMapFromSelection(QUuid::createUuid(), {1, 1});
    m_actions->createMapFromSelection(map->id(), {0, 0});
    QCOMPARE(ready.size(), 1);
    const QPointer<Map> made = m_project->map(ready[0][0].toUuid());
    QCOMPARE(made->size(), QSize(1, 1));
    QCOMPARE(made->tileSetId(), map->tileSetId());
    QCOMPARE(made->tileLayer()->cellAt({0, 0}).index, 3);
}

void TestProjectActions::menusAreServed()
{
    MenuBar bar;
    bar.setProject(m_project.get());
    const QUuid palette = make(ProjectTree::PaletteNode);
    m_project->createPalette(CreateAction::Blank, "Later");
    bar.paletteMenu()->setPalette(m_project->palette(palette));
    m_actions->serve(bar);
    emit bar.paletteMenu()->createPalette(CreateAction::CopyCurrent, "Copy");
    QCOMPARE(m_project->palettes().constLast()->rawColour(255), 0xFF01); // of the active palette
    emit bar.mapMenu()->create("Level", {}, {40, 32});
    QCOMPARE(m_project->maps().size(), 1);
    emit bar.mapMenu()->importRequested(path("none.png"));
    QCOMPARE(shownFailure(), "Could not read the image file");
}

// Copying and deleting

void TestProjectActions::copiesAndDeletes_data()
{
    QTest::addColumn<Node>("node");
    QTest::addColumn<bool>("copied");
    for (int node = 0; node < ProjectTree::NodeCount; ++node) {
        const bool copied =
            node == ProjectTree::PaletteNode || node == ProjectTree::TileSetNode || node == ProjectTree::MapNode;
        QTest::newRow(qPrintable(ProjectTree::nodeName(Node(node)))) << Node(node) << copied;
    }
}

void TestProjectActions::copiesAndDeletes()
{
    QFETCH(Node, node);
    QFETCH(bool, copied);
    const QUuid id = make(node);
    const int before = assetCount();
    m_actions->copyItem(node, QUuid::createUuid());
    QCOMPARE(assetCount(), before);
    m_actions->copyItem(node, id);
    const int withCopy = before + (copied ? 1 : 0);
    QCOMPARE(assetCount(), withCopy);

    int afterwards = -1;
    connect(m_actions.get(), &ProjectActions::itemDeleted, this,
            [&](Node gone, const QUuid &goneId) { afterwards = gone == node && goneId == id ? assetCount() : -1; });
    m_actions->deleteItem(node, id);
    QCOMPARE(afterwards, withCopy - 1);
}

void TestProjectActions::deletionIsRefused_data()
{
    QTest::addColumn<Node>("node");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("palette") << ProjectTree::PaletteNode << "Palette In Use"
                             << "You may not delete this palette; it is used by one or more sprites, tiles or images";
    QTest::newRow("tile set") << ProjectTree::TileSetNode << "Tile Set In Use"
                              << "You may not delete this Tile Set; it is used by one or more maps";
    QTest::newRow("map objects") << ProjectTree::MapObjectsNode << "Objects in use"
                                 << "You may not delete these objects; they are in use by one or more maps";
}

void TestProjectActions::deletionIsRefused()
{
    QFETCH(Node, node);
    QFETCH(QString, title);
    QFETCH(QString, text);
    const QPointer<Map> map = m_project->map(make(ProjectTree::MapNode));
    const QUuid blocks = m_project->createBlockList("Doors", map->tileSetId())->id();
    const QUuid ids[] = {map->tileSet()->paletteId(), map->tileSetId(), blocks};
    const int before = assetCount();
    QSignalSpy failed(m_actions.get(), &ProjectActions::failed);
    QSignalSpy deleted(m_actions.get(), &ProjectActions::itemDeleted);
    m_actions->deleteItem(node, ids[node]);
    QCOMPARE(failed, QList<QVariantList>({{text, title}}));
    QCOMPARE(deleted.size(), 0);
    QCOMPARE(assetCount(), before);
}

void TestProjectActions::spriteMenuIsToldFirst()
{
    MenuBar bar;
    m_actions->serve(bar);
    const QUuid id = make(ProjectTree::SpriteBankNode);
    bar.spriteMenu()->setSpriteBank(m_project->spriteBank(id));
    QSignalSpy told(m_actions.get(), &ProjectActions::aboutToDeleteSprites);
    connect(m_actions.get(), &ProjectActions::aboutToDeleteSprites, this,
            [&] { QVERIFY(m_project->spriteBank(id) && !bar.spriteMenu()->spriteBank()); });
    m_actions->deleteItem(ProjectTree::SpriteBankNode, id);
    QCOMPARE(told, QList<QVariantList>({{id}}));
    QVERIFY(!m_project->spriteBank(id));
}

// Maps

void TestProjectActions::importsNextData()
{
    const auto files = nextDataSet();
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        QVERIFY(writeFile(path("world.1." + file.key()), file.value()));
    QSignalSpy ready(m_actions.get(), &ProjectActions::mapReady);
    m_actions->importMap(path("world.1.nxb"));
    QCOMPARE(shownFailure(), QString());
    QCOMPARE(ready.size(), 1);
    const QPointer<Map> map = m_project->map(ready[0][0].toUuid());
    QCOMPARE(map->name(), "world.1");
    QCOMPARE(map->size(), QSize(2, 2));
    QCOMPARE(map->tileLayer()->cellAt({1, 0}).index, 2);
    QCOMPARE(map->tileSet()->count(), 512);
    QCOMPARE(int(map->tileSet()->tile(1)->pixels()[1]), 4);
    QCOMPARE(map->tileSet()->palette()->rawColour(1), 0xE381);
}

void TestProjectActions::nextDataFailures_data()
{
    QTest::addColumn<QString>("suffix"); // of the file that is damaged
    QTest::addColumn<int>("size"); // to which it is cut; -1 removes it
    QTest::addColumn<QString>("failure");
    QTest::addColumn<int>("assets"); // that stay
    for (const char *suffix : {"nxp", "nxt", "nxm", "nxb"})
        QTest::addRow("no %s", suffix) << suffix << -1 << "Some of the required files are missing" << 0;
    QTest::newRow("short palette") << "nxp" << 511 << "Could not import the palette data" << 1;
    QTest::newRow("short map") << "nxm" << 2 << "Could not import the map data" << 3;
    QTest::newRow("no blocks") << "nxb" << 0 << "Could not import the map data" << 3;
}

void TestProjectActions::nextDataFailures()
{
    QFETCH(QString, suffix);
    QFETCH(int, size);
    auto files = nextDataSet();
    if (size < 0)
        files.remove(suffix);
    else
        files[suffix].truncate(size);
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        QVERIFY(writeFile(path("world." + file.key()), file.value()));
    QSignalSpy ready(m_actions.get(), &ProjectActions::mapReady);
    m_actions->importMap(path("world.nxm"));
    QTEST(shownFailure(), "failure");
    QTEST(assetCount(), "assets");
    QCOMPARE(ready.size(), 0);
}

void TestProjectActions::importsPictureWithItsOrientations()
{
    // one tile and its turned and mirrored forms, and cut-off cells at the right and below
    const QImage tile = pictureOfTiles(1, 1);
    QImage picture(8 * 3 + 5, 8 + 7, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.drawImage(0, 0, tile);
    painter.drawImage(8, 0, tile.transformed(QTransform().rotate(90)));
    painter.drawImage(16, 0, tile.transformed(QTransform().scale(-1, 1)));
    painter.end();
    QVERIFY(picture.save(path("level.png")));

    QSignalSpy ready(m_actions.get(), &ProjectActions::mapReady);
    m_actions->importMap(path("level.png"));
    QCOMPARE(shownFailure(), QString());
    const QPointer<Map> map = m_project->map(ready.at(0).at(0).toUuid());
    QCOMPARE(map->name(), "level");
    QCOMPARE(map->size(), QSize(3, 1));
    QCOMPARE(map->tileSet()->name(), "level");
    QCOMPARE(map->tileSet()->count(), 512);
    const auto cell = [&map](int x) { return map->tileLayer()->cellAt({x, 0}); };
    QVERIFY(cell(0).used && cell(0).index == 0 && !cell(0).rotate && !cell(0).flip && !cell(0).mirror);
    QVERIFY(cell(1).used && cell(1).index == 0 && cell(1).rotate && !cell(1).flip && !cell(1).mirror);
    QVERIFY(cell(2).used && cell(2).index == 0 && !cell(2).rotate && !cell(2).flip && cell(2).mirror);
    QCOMPARE(map->tileLayer()->toImage({0, 0, 3, 1}).convertToFormat(QImage::Format_RGB32), picture.copy(0, 0, 24, 8));
}

void TestProjectActions::pictureLimit_data()
{
    QTest::addColumn<QSize>("tiles");
    QTest::addColumn<QString>("failure");
    QTest::newRow("512") << QSize(32, 16) << QString();
    QTest::newRow("513") << QSize(27, 19)
                         << "Cannot import the image as it would need more than 512 tiles\n513 required";
}

void TestProjectActions::pictureLimit()
{
    QFETCH(QSize, tiles);
    QFETCH(QString, failure);
    QVERIFY(pictureOfTiles(tiles.width(), tiles.height()).save(path("level.bmp")));
    m_actions->importMap(path("level.bmp"));
    QCOMPARE(shownFailure(), failure);
    QCOMPARE(assetCount(), failure.isEmpty() ? 3 : 0);
    QVERIFY(!m_window->findChild<QProgressDialog *>()); // it does not outlive its work
}

void TestProjectActions::fileThatIsNoPicture()
{
    const auto files = nextDataSet();
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        QVERIFY(writeFile(path("world." + file.key().toUpper()), file.value()));
    QVERIFY(writeFile(path("cut.png"), "\x89PNG\r\n\x1a\n and nothing more"));
    for (const char *name : {"world.NXM", "cut.png"}) { // suffixes of data sets are lower case
        m_actions->importMap(path(name));
        QCOMPARE(shownFailure(), "Could not read the image file");
        QCOMPARE(assetCount(), 0);
    }
}

// Palettes

void TestProjectActions::importedPaletteIsOneUndoStep()
{
    const QPointer<Palette> palette = m_project->palette(make(ProjectTree::PaletteNode));
    QUndoStack stack;
    const EditRecorder recorder(m_project.get(), [&stack](const QUuid &) { return &stack; });
    m_actions->setUndoStackProvider([&](const QUuid &id) { return id == palette->id() ? &stack : nullptr; });
    palette->setColour(0, Qt::red, true); // a step shortly before, with which the import is not mixed up
    // every word, those included that no colour of the program sets
    QByteArray file;
    for (int i = 0; i < Palette::Size; ++i)
        file.append(char(255 - i)).append(char(i));
    QVERIFY(writeFile(path("night.pal"), file));
    QSignalSpy changed(palette, &Palette::colourChanged);

    m_actions->importPalette(palette->id(), path("night.pal"));
    for (int i = 0; i < Palette::Size; ++i)
        QCOMPARE(palette->rawColour(i), quint16((255 - i) << 8 | i));
    QCOMPARE(changed.size(), Palette::Size);
    QCOMPARE(stack.count(), 2);

    stack.undo();
    QCOMPARE(palette->rawColour(0), 0xE080);
    QCOMPARE(palette->rawColour(255), 0xFF01);
    stack.redo();
    QCOMPARE(palette->rawColour(255), 0x00FF);

    m_actions->importPalette(palette->id(), path("night.pal")); // changes nothing
    QCOMPARE(stack.count(), 2);
}

void TestProjectActions::importsPaletteOfAPicture_data()
{
    QTest::addColumn<bool>("indexed");
    QTest::newRow("colour table") << true;
    QTest::newRow("distinct colours in reading order") << false;
}

void TestProjectActions::importsPaletteOfAPicture()
{
    QFETCH(bool, indexed);
    const QPointer<Palette> palette = m_project->palette(make(ProjectTree::PaletteNode));
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(qRgb(0, 0, 255));
    picture.setPixel(1, 0, qRgb(219, 0, 0)); // as the hardware shows level 6
    if (indexed) {
        picture = QImage(2, 2, QImage::Format_Indexed8);
        picture.setColorTable({qRgb(0, 0, 255), qRgb(219, 0, 0), qRgb(0, 255, 0)});
        picture.fill(2);
    }
    QVERIFY(picture.save(path("colours.png")));
    m_actions->importPalette(palette->id(), path("colours.png"));
    QCOMPARE(palette->rawColour(0), 0x0301);
    QCOMPARE(palette->rawColour(1), 0xC000);
    QCOMPARE(palette->rawColour(2), indexed ? 0x1C00 : 0x0201); // beyond the picture's colours nothing changes
    QCOMPARE(palette->rawColour(255), 0xFF01);
}

void TestProjectActions::importsANewPalette()
{
    QVERIFY(writeFile(path("night.npl"), QByteArray(512, '\1') + '\0'));
    QSignalSpy ready(m_actions.get(), &ProjectActions::paletteReady);
    m_actions->importPalette({}, path("night.npl"));
    QCOMPARE(ready.size(), 1);
    const QPointer<Palette> palette = m_project->palette(ready[0][0].toUuid());
    QCOMPARE(palette->name(), "night");
    QCOMPARE(palette->rawColour(200), 0x0101);
}

void TestProjectActions::paletteFailureIsTold()
{
    const QPointer<Palette> palette = m_project->palette(make(ProjectTree::PaletteNode));
    QVERIFY(writeFile(path("night.pal"), QByteArray(511, '\1')));
    QTest::ignoreMessage(QtWarningMsg, "Read error");
    m_actions->importPalette(palette->id(), path("night.pal"));
    QCOMPARE(palette->rawColour(255), 0xFF01);
    QCOMPARE(shownFailure(), "The file is neither a palette nor a picture that can be read");
}

// Sprites

void TestProjectActions::importsSprites_data()
{
    QTest::addColumn<bool>("picture");
    QTest::addColumn<bool>("newPalette");
    QTest::addColumn<int>("sprites");
    QTest::addColumn<quint16>("word"); // of entry 1 of the palette
    QTest::newRow("picture, remapped") << true << false << 3 << quint16(0x0101); // a blank one in front
    QTest::newRow("picture, cut") << true << true << 2 << quint16(0xE000);
    QTest::newRow("data") << false << false << 3 << quint16(0x0101);
    QTest::newRow("data, new palette") << false << true << 3 << quint16(0x0101);
}

void TestProjectActions::importsSprites()
{
    QFETCH(bool, picture);
    QFETCH(bool, newPalette);
    const QUuid palette = make(ProjectTree::PaletteNode);
    QImage image(32, 16, QImage::Format_RGB32);
    image.fill(Qt::black);
    for (int x = 16; x < 24; ++x)
        image.setPixel(x, 0, qRgb(255, 0, 0));
    QVERIFY(image.save(path("hero.png")));
    QVERIFY(writeFile(path("hero.spr"), QByteArray(256, '\7') + QByteArray(256, '\5')));

    QUndoStack stack;
    const EditRecorder recorder(m_project.get(), [&stack](const QUuid &) { return &stack; });
    QSignalSpy ready(m_actions.get(), &ProjectActions::spritesReady);
    const SpriteImport import{path(picture ? "hero.png" : "hero.spr"), "Hero", Quenmora::FourBit,
                              newPalette ? QUuid() : palette};
    if (picture)
        m_actions->importSpritePicture(import);
    else
        m_actions->importSpriteData(import);
    QCOMPARE(shownFailure(), QString());
    QCOMPARE(ready.size(), 1);
    const QPointer<SpriteBank> bank = m_project->spriteBank(ready[0][0].toUuid());
    QCOMPARE(bank->name(), "Hero");
    QCOMPARE(bank->depth(), Quenmora::FourBit);
    QTEST(bank->count(), "sprites");
    QCOMPARE(bank->palette()->name(), newPalette ? "Hero" : "Main");
    QTEST(bank->palette()->rawColour(1), "word");
    if (picture)
        QCOMPARE(bank->spriteImage(bank->count() - 1, false, false, false).pixel(0, 0), qRgb(255, 0, 0));
    else
        QCOMPARE(bank->spriteImage(2, false, false, false).pixelIndex(0, 0), 5);
    QCOMPARE(stack.count(), 0); // what is made by an import is no edit
}

void TestProjectActions::spriteFailureLeavesNothing()
{
    const QUuid palette = make(ProjectTree::PaletteNode);
    QVERIFY(writeFile(path("short"), QByteArray(255, '\1')));
    QSignalSpy created(m_project.get(), &Project::spritesCreated); // a bank that was seen could not vanish again
    for (const QUuid &paletteId : {palette, QUuid()}) {
        const SpriteImport import{path("short"), "Hero", Quenmora::EightBit, paletteId};
        m_actions->importSpritePicture(import);
        QCOMPARE(shownFailure(), "Could not make sprites of the image file");
        m_actions->importSpriteData(import);
        QCOMPARE(shownFailure(), "Could not import the sprite data");
        QCOMPARE(assetCount() + created.size(), 1);
    }
}

QUENMORA_TEST_MAIN(TestProjectActions)
#include "tst_projectactions.moc"
