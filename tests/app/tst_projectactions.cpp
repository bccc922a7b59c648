#include "app/menus/mapmenu.h"
#include "app/menus/menubar.h"
#include "app/menus/spritemenu.h"
#include "app/projectactions.h"
#include "nextdata/source.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QtTest>
#include <QtWidgets>

namespace {

using SampleProject::png;
using Node = ProjectTree::ProjectNode;

/// A picture of different tiles in two colours: the frame of each tells its orientation, its number stands
/// inside.
QImage pictureOfTiles(QSize tiles)
{
    QImage picture(tiles * 8, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    for (int number = 0; number < tiles.width() * tiles.height(); ++number) {
        const QPoint corner(number % tiles.width() * 8, number / tiles.width() * 8);
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
    void init()
    {
        m_project = std::make_unique<Project>();
        m_window = std::make_unique<QWidget>();
        m_actions = std::make_unique<ProjectActions>([this] { return m_project.get(); }, m_window.get());
        m_ready = QUuid();
        for (const auto signal :
             {&ProjectActions::paletteReady, &ProjectActions::tileSetReady, &ProjectActions::mapReady,
              &ProjectActions::blocksReady, &ProjectActions::spritesReady})
            connect(m_actions.get(), signal, this, [this](const QUuid &id) { m_ready = id; });
    }

    void cleanup() { m_window.reset(); } // no window outlives the application

    void copiesWhatCanBeCopied()
    {
        SampleProject::fill(*m_project);
        const std::tuple<Node, QUuid, int> cases[]{
            {ProjectTree::PaletteNode, m_project->palettes().first()->id(), 1},
            {ProjectTree::TileSetNode, m_project->tileSets().first()->id(), 1},
            {ProjectTree::MapObjectsNode, m_project->blockSets().first()->id(), 0},
            {ProjectTree::SpriteBankNode, m_project->spriteBanks().first()->id(), 0},
            {ProjectTree::MapNode, m_project->maps().first()->id(), 1},
            {ProjectTree::ImageNode, m_project->images().first()->id(), 0},
            {ProjectTree::MapNode, QUuid::createUuid(), 0}};
        for (const auto &[node, id, copies] : cases) {
            const qsizetype count = assetCount();
            m_actions->copyItem(node, id);
            QCOMPARE(assetCount(), count + copies);
        }
    }

    void importsNextData_data()
    {
        QTest::addColumn<QString>("cutSuffix"); // of the file that is damaged
        QTest::addColumn<int>("size"); // to which it is cut; -1 removes it
        QTest::addColumn<QString>("failure");
        QTest::addColumn<int>("assets"); // that stay
        for (const char *suffix : {"nxp", "nxt", "nxm", "nxb"})
            QTest::addRow("no %s", suffix) << suffix << -1 << "Some of the required files are missing" << 0;
        QTest::newRow("short palette") << "nxp" << 511 << "Could not import the palette data" << 1;
        QTest::newRow("short map") << "nxm" << 2 << "Could not import the map data" << 3;
        QTest::newRow("no blocks") << "nxb" << 0 << "Could not import the map data" << 3;
        QTest::newRow("all there") << "" << 0 << "" << 3;
    }

    void importsNextData()
    {
        QFETCH(QString, cutSuffix);
        QFETCH(int, size);
        writeNextData(cutSuffix, size);
        m_actions->importMap(m_folder("world.1.nxt"));
        QTEST(shownFailure(), "failure");
        QTEST(int(assetCount()), "assets");
        QCOMPARE(m_ready.isNull(), !shownFailure().isEmpty());
        if (m_ready.isNull())
            return;
        const QPointer<Map> map = m_project->map(m_ready);
        QCOMPARE(map->name(), "world.1");
        QCOMPARE(map->size(), QSize(2, 2));
        QCOMPARE(map->tileLayer()->cellAt({1, 0}).index, 2);
        QCOMPARE(map->tileSet()->count(), 512);
        QCOMPARE(int(map->tileSet()->tile(1)->pixels()[1]), 4);
        QCOMPARE(map->tileSet()->palette()->rawColour(1), 0xE381);
    }

    void importsPictureWithItsOrientations()
    {
        // one tile and its turned and mirrored forms, and cut-off cells at the right and below
        const QImage tile = pictureOfTiles({1, 1});
        QImage picture(8 * 3 + 5, 8 + 7, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        painter.drawImage(0, 0, tile);
        painter.drawImage(8, 0, tile.transformed(QTransform().rotate(90)));
        painter.drawImage(16, 0, tile.transformed(QTransform().scale(-1, 1)));
        painter.end();
        m_actions->importMap(m_folder("level.png", png(picture)));
        const QPointer<Map> map = m_project->map(m_ready);
        QVERIFY(map && map->name() == "level" && map->tileSet()->name() == "level");
        QCOMPARE(map->size(), QSize(3, 1));
        QCOMPARE(map->tileSet()->count(), 512);
        const TileMap::Rows rows = map->tileLayer()->rows();
        for (const TileMap::TileData &cell : rows.first())
            QCOMPARE(cell.index, 0);
        QCOMPARE(map->tileLayer()->toImage({0, 0, 3, 1}).convertToFormat(QImage::Format_RGB32),
                 picture.copy(0, 0, 24, 8));
    }

    void refusesPicturesThatCannotBe()
    {
        const QString huge = "Could not read the image file\nIt has 9000 × 9000 pixels; at most 8192 × 8192, or as "
                             "many in another shape, can be read";
        const std::tuple<QSize, const char *, QString> cases[]{
            {{32, 16}, "level.bmp", ""},
            {{27, 19}, "level.bmp", "Cannot import the image as it would need more than 512 tiles\n513 required"},
            {{}, "cut.png", "Could not read the image file"},
            {{}, "world.NXM", "Could not read the image file"}, // which is not the suffix of a data set
            {{}, "huge.ppm", huge}};
        for (const auto &[tiles, name, failure] : cases) {
            init();
            const QString file = m_folder(name);
            const QByteArray head = file.endsWith(".ppm") ? "P6 9000 9000 255\n" : "\x89PNG\r\n\x1a\n and nothing more";
            QVERIFY(tiles.isEmpty() ? writeFile(file, head) : pictureOfTiles(tiles).save(file));
            m_actions->importMap(file);
            QCOMPARE(shownFailure(), failure);
            QCOMPARE(assetCount(), failure.isEmpty() ? 3 : 0);
            QVERIFY(!m_window->findChild<QProgressDialog *>()); // it does not outlive its work
        }
    }

    void tellsOfTilesThatLostColours()
    {
        QImage picture(32, 8, QImage::Format_RGB32);
        picture.fill(Qt::black);
        for (int i = 0; i < 17; ++i) // more colours than a tile shows
            picture.setPixel(9 + i % 4, i / 4, qRgb(16 + 16 * (i % 8), 16 * (i / 8), 0));
        m_actions->importMap(m_folder("level.png", png(picture)));
        QVERIFY(!m_ready.isNull() && assetCount() == 3); // what can be shown is there
        QVERIFY2(shownFailure().startsWith("Tiles that lost colours: 1 of 2.\n"), qPrintable(shownFailure()));
    }

    void importedPaletteIsOneUndoStep()
    {
        const QPointer<Palette> palette = m_project->palette(makePalette());
        QUndoStack stack;
        const EditRecorder recorder(m_project.get(), [&stack](const QUuid &) { return &stack; });
        m_actions->setUndoStackProvider([&](const QUuid &id) { return id == palette->id() ? &stack : nullptr; });
        palette->setColour(0, Qt::red, true); // a step shortly before, with which the import is not mixed up
        // every word, those included that no colour of the program sets
        QByteArray file;
        for (int i = 0; i < Palette::Size; ++i)
            file.append(char(255 - i)).append(char(i));
        QSignalSpy changed(palette, &Palette::colourChanged);
        m_actions->importPalette(palette->id(), m_folder("night.pal", file));
        for (int i = 0; i < Palette::Size; ++i)
            QCOMPARE(palette->rawColour(i), quint16((255 - i) << 8 | i));
        QCOMPARE(changed.size(), Palette::Size);
        m_actions->importPalette(palette->id(), m_folder("night.pal")); // changes nothing
        QCOMPARE(stack.count(), 2);
        stack.undo();
        QCOMPARE(palette->rawColour(0), 0xE080);
        QCOMPARE(palette->rawColour(255), 0xFF01);
        stack.redo();
        QCOMPARE(palette->rawColour(255), 0x00FF);
    }

    void importsColoursOfPictures()
    {
        const QPointer<Palette> palette = m_project->palette(makePalette());
        QImage picture(2, 2, QImage::Format_RGB32); // its distinct colours in reading order
        picture.fill(qRgb(0, 0, 255));
        picture.setPixel(1, 0, qRgb(219, 0, 0)); // as the hardware shows level 6
        picture = picture.convertToFormat(QImage::Format_ARGB32);
        picture.setPixel(0, 1, qRgba(9, 99, 9, 0)); // clear: no colour
        QImage indexed(2, 2, QImage::Format_Indexed8); // its colour table
        indexed.setColorTable({qRgb(0, 0, 255), qRgb(219, 0, 0), qRgb(0, 255, 0)});
        indexed.fill(2);
        for (const auto &[image, third] : {std::pair(picture, 0x0201), {indexed, 0x1C00}}) { // or as it was before
            m_actions->importPalette(palette->id(), m_folder("colours.png", png(image)));
            QCOMPARE(palette->rawColour(0), 0x0301);
            QCOMPARE(palette->rawColour(1), 0xC000);
            QCOMPARE(palette->rawColour(2), third);
            QVERIFY(shownFailure().isEmpty());
        }
        const QImage all = pictureOf({512, 1}, QImage::Format_RGB32, &NineBitColour::shown);
        m_actions->importPalette(palette->id(), m_folder("colours.png", png(all)));
        for (int i = 0; i < 256; ++i)
            QCOMPARE(palette->rawColour(i), i >> 1 << 8 | (i & 1));
        QCOMPARE(shownFailure(), "The picture has 512 colours; the palette takes the first 256 of them");
        // a second one takes what is left
        const auto *box = m_window->findChild<QMessageBox *>();
        QCOMPARE(box->buttons().size(), 2);
        box->buttons().constLast()->click();
        const QPointer<Palette> second = m_project->palette(m_ready);
        QVERIFY(second && second->name() == "colours, more" && shownFailure().isEmpty());
        for (int i = 0; i < 256; ++i)
            QCOMPARE(second->rawColour(i), NineBitColour::wordOf(256 + i));
        QCOMPARE(box->buttons().size(), 1);
    }

    void readsAPictureOnce()
    {
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(Qt::black);
        const QString file = m_folder("level.png", png(picture));
        MenuBar menus;
        MapMenu &maps = *menus.mapMenu();
        maps.setProject(m_project.get());
        maps.setFileChooser([&file](const FileRequest &, QWidget *) { return file; });
        connect(&maps, &MapMenu::importRequested, this, [](const QString &path) { QVERIFY(QFile::remove(path)); });
        m_actions->serve(menus);
        maps.showImportDialog();
        QVERIFY(m_project->map(m_ready));
        QCOMPARE(m_project->map(m_ready)->size(), QSize(2, 2));
    }

    void keepsTheMachinesLevels()
    {
        const QImage picture = pictureOf({16, 16}, QImage::Format_RGB32, [](int i) { // greys, as converters show them
            const int grey = std::array{0, 36, 73, 109, 146, 182, 219, 255}.at(size_t(i % 16 / 2));
            return qRgb(grey, grey, grey);
        });
        const QString file = m_folder("greys.png", png(picture));
        const auto greyOf = [](int level) { return quint16(level * 0x2400 | level >> 1 << 8 | (level & 1)); };
        for (const bool keep : {true, false}) {
            m_actions->importSpritePicture({file, "Greys", Quenmora::EightBit, {}, keep});
            const QPointer<SpriteBank> bank = m_project->spriteBank(m_ready);
            const QImage sprite = bank->spriteImage(bank->count() - 1, false, false, false);
            for (int level = 0; level < 8; ++level) {
                const auto entry = bank->palette()->colourTable().indexOf(sprite.pixel(2 * level, 0));
                QCOMPARE(bank->palette()->rawColour(int(entry)), greyOf(level == 6 && !keep ? 7 : level));
            }
        }
        m_actions->importPalette({}, file);
        const QPointer<Palette> palette = m_project->palette(m_ready);
        for (int level = 0; level < 8; ++level)
            QCOMPARE(palette->rawColour(level), greyOf(level));
        // in the colours of that palette, each has its own entry, of which 18 are black
        m_actions->importSpritePicture({file, "Same", Quenmora::EightBit, palette->id(), true});
        const QPointer<SpriteBank> same = m_project->spriteBank(m_ready);
        for (int level = 0; level < 8; ++level)
            QCOMPARE(same->spriteImage(1, false, false, false).pixelIndex(2 * level, 0), level);
    }

    void importsANewPalette()
    {
        m_actions->importPalette({}, m_folder("night.npl", QByteArray(512, '\1') + '\0'));
        const QPointer<Palette> palette = m_project->palette(m_ready);
        QCOMPARE(palette->name(), "night");
        QCOMPARE(palette->rawColour(200), 0x0101);

        QTest::ignoreMessage(QtWarningMsg, "Read error");
        m_actions->importPalette(palette->id(), m_folder("short.pal", QByteArray(511, '\2')));
        QCOMPARE(palette->rawColour(200), 0x0101);
        QCOMPARE(shownFailure(), "The file is neither a palette nor a picture that can be read");
    }

    void importsSpriteData()
    {
        const QString file = m_folder("hero.spr", QByteArray(256, '\7') + QByteArray(256, '\5'));
        QUndoStack stack;
        const EditRecorder recorder(m_project.get(), [&stack](const QUuid &) { return &stack; });
        for (const QUuid &palette : {makePalette(), QUuid()}) {
            m_actions->importSpriteData({file, "Hero", Quenmora::FourBit, palette});
            const QPointer<SpriteBank> bank = m_project->spriteBank(m_ready);
            QVERIFY(bank && bank->name() == "Hero" && bank->depth() == Quenmora::FourBit);
            QCOMPARE(bank->count(), 3); // with a blank one in front
            QCOMPARE(bank->palette()->name(), palette.isNull() ? "Hero" : "Main");
            QCOMPARE(bank->palette()->rawColour(1), 0x0101);
            QCOMPARE(bank->spriteImage(2, false, false, false).pixelIndex(0, 0), 5);
        }
        QCOMPARE(stack.count(), 0); // what is made by an import is no edit
    }

    void importedSpritesAreClearWhereThePictureIs_data()
    {
        QTest::addColumn<Quenmora::Sprite>("depth");
        QTest::addColumn<bool>("newPalette");
        QTest::addColumn<int>("colours"); // of the picture
        QTest::addColumn<bool>("reduced");
        QTest::newRow("8 bits, remapped") << Quenmora::EightBit << false << 256 << false;
        QTest::newRow("8 bits, own colours") << Quenmora::EightBit << true << 255 << false;
        QTest::newRow("8 bits, a colour too many") << Quenmora::EightBit << true << 256 << false;
        QTest::newRow("4 bits, remapped") << Quenmora::FourBit << false << 256 << false;
        QTest::newRow("4 bits, own colours") << Quenmora::FourBit << true << 15 << false;
        QTest::newRow("8 bits, reduced") << Quenmora::EightBit << true << 256 << true;
        QTest::newRow("4 bits, reduced") << Quenmora::FourBit << false << 256 << true;
    }

    void importedSpritesAreClearWhereThePictureIs()
    {
        QFETCH(Quenmora::Sprite, depth);
        QFETCH(bool, newPalette);
        QFETCH(int, colours);
        QFETCH(bool, reduced);
        const QUuid standard = makePalette();
        // every colour of the standard palette, that of the transparent index too
        const QImage picture = pictureOf({16, 32}, QImage::Format_ARGB32, [&](int i) {
            const int alpha = i == 300 ? 127 : i == 301 ? 128 : i < 257 ? 255 : 0;
            return (m_project->palette(standard)->colour(i % colours).rgb() & RGB_MASK) | uint(alpha) << 24;
        });
        SpriteImport import{m_folder("hero.png", png(picture)), "Hero", depth, newPalette ? QUuid() : standard};
        if (reduced)
            import.reduction = Dithering::Diffusion;
        m_actions->importSpritePicture(import);
        const QPointer<SpriteBank> bank = m_project->spriteBank(m_ready);
        QVERIFY(bank && bank->count() == (newPalette ? 2 : 3));
        QCOMPARE(bank->palette()->transparencyIndex(), newPalette ? bank->clearPixels().pixel() : -1);
        for (int i = 0; i < 512; ++i) {
            const int sprite = bank->count() - 2 + i / 256;
            const QRgb shown = bank->renderSprite(sprite, 0, false, false, false).pixel(i % 16, i / 16 % 16);
            QVERIFY2((qAlpha(shown) == 0) == (qAlpha(picture.pixel(i % 16, i / 16)) < 128),
                     qPrintable(QString::number(i)));
            if (qAlpha(shown) > 0 && newPalette && colours < 256) {
                Palette hardware;
                hardware.setColour(0, Palette::snapColour(QColor::fromRgb(picture.pixel(i % 16, i / 16))), false);
                QCOMPARE(shown, hardware.colour(0).rgb());
            }
        }
    }

    void spriteFailureLeavesNothing()
    {
        const QUuid palette = makePalette();
        const QString file = m_folder("short", QByteArray(255, '\1'));
        QSignalSpy created(m_project.get(), &Project::spritesCreated); // a bank that was seen could not vanish again
        for (const QUuid &paletteId : {palette, QUuid()}) {
            const SpriteImport import{file, "Hero", Quenmora::EightBit, paletteId};
            m_actions->importSpritePicture(import);
            QCOMPARE(shownFailure(), "Could not make sprites of the image file");
            m_actions->importSpriteData(import);
            QCOMPARE(shownFailure(), "Could not import the sprite data");
            QCOMPARE(assetCount() + created.size(), 1);
        }
    }

private:
    [[nodiscard]] qsizetype assetCount() const { return NextData::Source::all(*m_project).size(); }
    /// The failure that the message box for imports shows; empty while it is not open.
    [[nodiscard]] QString shownFailure() const
    {
        const auto *box = m_window->findChild<QMessageBox *>();
        if (!box || !box->isVisible())
            return {};
        return box->text() == "Import Incomplete" ? box->informativeText() : "not the box for imports";
    }

    QUuid makePalette() const { return m_project->createPalette(CreateAction::DefaultNext, "Main")->id(); }
    /// Writes the files of a Next data set, "world.1" of 2 × 2 cells, one of them cut to a size or left out (-1).
    void writeNextData(const QString &cutSuffix, int size) const
    {
        QByteArray palette(512, '\0');
        palette[2] = '\xE3'; // entry 1
        palette[3] = '\x81';
        const QHash<QString, QByteArray> files{{"nxp", palette},
                                               {"nxt", QByteArray(32, '\x12') + QByteArray(32, '\x34')},
                                               {"nxm", QByteArray("\2\2", 2) + QByteArray(256, '\0')},
                                               {"nxb", QByteArray("\1\0\2\0\3\0\0\0", 8)}}; // the tiles of one block
        for (auto file = files.cbegin(); file != files.cend(); ++file) {
            const QString name = m_folder("world.1." + file.key(), file.key() == cutSuffix ? file->left(size) : *file);
            if (file.key() == cutSuffix && size < 0)
                QFile::remove(name);
        }
    }

    TemporaryFolder m_folder;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<ProjectActions> m_actions;
    QUuid m_ready; ///< the id that a signal of the actions has told last
};

QUENMORA_TEST_MAIN(TestProjectActions)
#include "tst_projectactions.moc"
