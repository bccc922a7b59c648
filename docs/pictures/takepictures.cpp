// Takes the pictures of the documentation: opens the sample project in the real window, and saves what
// it shows of every editor, menu and dialog.
//
//   takepictures SAMPLE FOLDER light|dark [NAME…]
//
// With names it saves only those pictures.

#include "app/commands/commanddesk.h"
#include "app/commands/commandpalette.h"
#include "app/commands/shortcutsdialog.h"
#include "app/dialogs/importimagedialog.h"
#include "app/dialogs/importpicturedialog.h"
#include "app/documentcontroller.h"
#include "app/documenttabview.h"
#include "app/documentviews.h"
#include "app/exportproject/addoutputsdialog.h"
#include "app/exportproject/exportprojectdialog.h"
#include "app/exportproject/outputdialog.h"
#include "app/exportproject/projectexport.h"
#include "app/exportproject/recipetable.h"
#include "app/importfile/fileimport.h"
#include "app/importfile/importfiledialog.h"
#include "app/installedfiles.h"
#include "app/mainwindow.h"
#include "app/menus/menubar.h"
#include "app/projectcontroller.h"
#include "app/startpage.h"
#include "app/version.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/imageimportdialog.h"
#include "editors/canvas/reductionbox.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilepickertool.h"
#include "editors/canvas/tilewindow.h"
#include "editors/common/animationlistwidget.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/maptoolpalette.h"
#include "editors/map/paintdesk.h"
#include "editors/map/spritepropertiespopover.h"
#include "editors/map/terraindialog.h"
#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettegrid.h"
#include "editors/palette/palettewindow.h"
#include "exportprogram.h" // made by the build: where the program is
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/project.h"
#include "model/projectpicture.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "preferences/preferencesdialog.h"
#include "recovery/recoverycopier.h"
#include "store/keptblocks.h"
#include "store/projectdocument.h"
#include "support/desktop.h"
#include "update/updatechecker.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>
#include <QScreen>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <cmath>

namespace {

constexpr QSize WindowSize(1360, 880); // where the screen has room for it

class PictureTaker
{
public:
    PictureTaker(MainWindow &window, const QDir &folder, const QString &suffix, const QStringList &wanted)
        : m_window(window)
        , m_views(window.views())
        , m_folder(folder)
        , m_suffix(suffix)
        , m_wanted(wanted)
    { }

    void takeAll(const QString &sample);

private:
    Project &project() { return *m_window.projectController()->project(); }
    DocumentController &documents() { return *m_window.documentController(); }

    void settle()
    {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
    }
    void save(const QPixmap &picture, const QString &name)
    {
        if (m_wanted.isEmpty() || m_wanted.contains(name + m_suffix))
            picture.save(m_folder.filePath(name + m_suffix + QStringLiteral(".png")));
    }
    /// The window with what stands in front of it.
    void shoot(const QString &name, const QList<QWidget *> &inFront = {})
    {
        settle();
        QPixmap picture = m_window.grab();
        QPainter painter(&picture);
        for (QWidget *widget : inFront)
            painter.drawPixmap(m_window.mapFromGlobal(widget->mapToGlobal(QPoint())), widget->grab());
        painter.end();
        save(picture, name);
    }
    void drag(QWidget &widget, QPoint from, QPoint to)
    {
        const auto send = [&widget](QEvent::Type type, QPoint point, Qt::MouseButton button, Qt::MouseButtons held) {
            QMouseEvent event(type, point, widget.mapToGlobal(point), button, held, Qt::NoModifier);
            QApplication::sendEvent(&widget, &event);
        };
        send(QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    }

    void takeStart();
    void takeRecovery(const QString &sample);
    void takePainting(MapEditor::View &view);
    void takeMenus();
    void takeDialogs();
    void takeCommands();
    void takePictureImport();
    void takeMap();
    void takePixels();
    void takeAnimations();
    void takeExport();

    MainWindow &m_window;
    const DocumentViews &m_views;
    QDir m_folder;
    QString m_suffix;
    QStringList m_wanted; ///< empty for all
};

void PictureTaker::takeAll(const QString &sample)
{
    takeStart();
    takeRecovery(sample);
    m_window.projectController()->openProject(sample);
    takeMap();
    takePixels();
    takeAnimations();
    takeMenus();
    takeDialogs();
    takeCommands();
    takePictureImport();
    takeExport();
}

/// With the picture of the sample.
void PictureTaker::takeStart()
{
    constexpr int Patience = 30'000; // milliseconds
    const QTemporaryDir kept;
    RecentPictures *pictures = m_window.findChild<StartPage *>()->pictures();
    pictures->setFolder(kept.path());
    pictures->setProgram(QStringLiteral(EXPORT_PROGRAM));
    QEventLoop wait;
    QObject::connect(pictures, &RecentPictures::found, &wait, &QEventLoop::quit);
    QTimer::singleShot(Patience, &wait, &QEventLoop::quit);
    pictures->want({InstalledFiles::sampleProject()});
    wait.exec();
    shoot(QStringLiteral("start"));
    settle();
    save(m_window.centralWidget()->grab(), QStringLiteral("start-page"));
}

void PictureTaker::takeRecovery(const QString &sample)
{
    ProjectStore store;
    auto folder = RecoveryFolder::create(AppState::recoveryFolder());
    if (!store.load(sample) || !folder)
        return;
    {
        RecoveryManifest manifest;
        manifest.projectName = store.project()->name();
        manifest.projectFile = sample;
        manifest.time = QDateTime(QDate::currentDate(), QTime(14, 32));
        RecoveryWriter writer(std::move(*folder));
        KeptBlocks kept;
        RecoveryCopier copier(writer, kept, snapshotOf(*store.project(), true), manifest,
                              projectPicture(*store.project(), {}));
        if (copier.run() != RecoveryCopier::Done)
            return;
    } // and nobody has it any more, as after a crash
    m_window.recoveryOffers()->refresh();
    settle();
    save(m_window.centralWidget()->grab(), QStringLiteral("recovery"));
    m_window.recoveryOffers()->discard(0);
}

void PictureTaker::takeMap()
{
    documents().setActiveMap(project().maps().constFirst()->id());
    settle();
    auto *view = qobject_cast<MapEditor::View *>(m_views.tabs->currentWidget());
    MapEditor::MapGrid &grid = *view->grid();
    m_views.mapSprites->raise();
    shoot(QStringLiteral("window"));

    // The tabs of the map alone, with its docks.
    view->toolPalette()->setActionChecked(Quenmora::Ui::Grid, true);
    shoot(QStringLiteral("map"));
    view->toolPalette()->setActionChecked(Quenmora::Ui::Grid, false);
    shoot(QStringLiteral("map-plain"));

    grid.setMode(Quenmora::Ui::Select);
    drag(grid, grid.rect().center() - QPoint(100, 60), grid.rect().center() + QPoint(90, 70));
    shoot(QStringLiteral("map-selection"));

    grid.setMode(Quenmora::Ui::PlaceSprite);
    if (!view->map()->sprites().isEmpty()) {
        emit grid.spriteClicked(0);
        settle();
        shoot(QStringLiteral("map-sprite"), {view->popover()});
        view->popover()->hide();
    }
    grid.setMode(Quenmora::Ui::Draw);
    takePainting(*view);
}

/// Stamps of the level, the hill as a terrain, and the overview.
void PictureTaker::takePainting(MapEditor::View &view)
{
    MapEditor::MapGrid &grid = *view.grid();
    MapEditor::PaintDesk &desk = *view.paintDesk();
    const QPointer<TileMap> level = view.map()->tileLayer();
    for (const QRect &part : {QRect(1, 6, 4, 2), QRect(17, 8, 2, 5), QRect(2, 0, 4, 1), QRect(8, 6, 8, 7)})
        desk.pickStamp(Stamp::of(*level, part)); // an island, a tree, a cloud and the house
    constexpr int North = Terrain::North;
    constexpr int East = Terrain::East;
    constexpr int South = Terrain::South;
    constexpr int West = Terrain::West;
    Terrain hill{QStringLiteral("Hill"), false, {}};
    for (const int earth : {22, 23})
        hill.mark(earth, Terrain::Sides);
    for (const int grass : {29, 30})
        hill.mark(grass, East | South | West);
    hill.mark(31, East | South);
    hill.mark(32, South | West);
    hill.mark(33, North | East);
    hill.mark(34, North | East | West);
    hill.mark(35, North | West);
    if (desk.bar()->kit())
        desk.bar()->kit()->setTerrains({hill});
    desk.setOverviewVisible(true);
    const QPoint over = grid.viewport().rectOfCells({10, 3, 1, 1}).center();
    QMouseEvent move(QEvent::MouseMove, over, grid.mapToGlobal(over), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&grid, &move);
    while (view.paintDesk()->bar()->isShowingSoon())
        settle();
    shoot(QStringLiteral("map-stamps"));

    desk.showTerrainDialog();
    settle();
    auto *dialog = view.findChild<MapEditor::TerrainDialog *>();
    save(dialog->grab(), QStringLiteral("terrains"));
    dialog->reject();
    desk.setOverviewVisible(false);
    grid.setCurrentTileIndex(0);
}

void PictureTaker::takePixels()
{
    const QPointer<TileSet> tiles = project().tileSets().constFirst();
    documents().setActiveTileSet(tiles->id());
    m_views.tileEditor->setTileIndex(4);
    m_views.tilePicker->setSelectedIndex(3);
    m_views.tileEditor->canvas()->setZoomLevel(24);
    shoot(QStringLiteral("tiles"));

    documents().setActivePalette(tiles->paletteId());
    auto *paletteGrid = m_views.palette->findChild<PaletteGrid *>();
    drag(*paletteGrid, QPoint(40, 8), QPoint(200, 24));
    settle();
    save(m_views.palette->grab(), QStringLiteral("palette"));

    documents().setActiveSpriteEditor(project().spriteBanks().constFirst()->id());
    m_views.spriteEditor->changeSprite(1);
    shoot(QStringLiteral("sprites"));

    documents().setActiveImageEditor(project().images().constFirst()->id());
    settle();
    auto *image = qobject_cast<ImageEditor::View *>(m_views.tabs->currentWidget());
    image->canvas()->setZoomLevel(3);
    shoot(QStringLiteral("image"));
    // A paste on its way: the copy follows the pointer.
    image->canvas()->setMode(Quenmora::Ui::Select);
    drag(*image->canvas(), image->canvas()->rect().center(), image->canvas()->rect().center() + QPoint(120, 90));
    image->canvas()->copy();
    image->canvas()->paste();
    const QPoint middle = image->canvas()->rect().center() - QPoint(60, 40);
    QMouseEvent move(QEvent::MouseMove, middle, image->canvas()->mapToGlobal(middle), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(image->canvas(), &move);
    shoot(QStringLiteral("image-paste"));
    image->canvas()->setMode(Quenmora::Ui::Draw);
}

void PictureTaker::takeAnimations()
{
    const auto selectFirst = [this] {
        settle();
        if (auto *list = m_views.tabs->currentWidget()->findChild<QListView *>())
            list->setCurrentIndex(list->model()->index(0, 0));
    };
    documents().setActiveBlockEditor(project().blockSets().constFirst()->id());
    selectFirst();
    shoot(QStringLiteral("map-objects"));
    documents().setActiveSpriteEditor(project().spriteBanks().constFirst()->id());
    selectFirst();
    shoot(QStringLiteral("sprite-animations"));
}

void PictureTaker::takeMenus()
{
    documents().setActiveMap(project().maps().constFirst()->id());
    settle();
    for (QAction *title : m_window.menus()->actions()) {
        QMenu *menu = title->menu();
        menu->popup(m_window.menus()->mapToGlobal(m_window.menus()->actionGeometry(title).bottomLeft()));
        settle();
        save(menu->grab(), QStringLiteral("menu-") + title->text().remove(QLatin1Char('&')).toLower());
        menu->close();
    }
}

void PictureTaker::takeCommands()
{
    CommandDesk &desk = *m_window.commands();
    desk.showPalette();
    auto *palette = m_window.findChild<CommandPalette *>();
    palette->findChild<QLineEdit *>()->setText(QStringLiteral("til"));
    settle();
    save(palette->grab(), QStringLiteral("command-palette"));
    palette->hide();
    desk.showShortcuts();
    auto *dialog = m_window.findChild<ShortcutsDialog *>();
    dialog->findChild<QLineEdit *>()->setText(QStringLiteral("map editor"));
    settle();
    save(dialog->grab(), QStringLiteral("shortcuts"));
    dialog->reject();
}

void PictureTaker::takeDialogs()
{
    const auto takeFrom = [this](QMenu *menu, auto &&self) -> void {
        for (QAction *action : menu->actions()) {
            if (action->menu()) {
                self(action->menu(), self);
                continue;
            }
            const QString text = action->text().remove(QLatin1Char('&'));
            const bool opens = text.startsWith(QLatin1String("New")) || text == QLatin1String("Create Animations")
                || text == QLatin1String("Swap Palette") || text == QLatin1String("Export")
                || text == QLatin1String("Spectrum Chars") || text == QLatin1String("Preferences")
                || text == QLatin1String("About");
            if (!opens || !action->isEnabled())
                continue;
            action->trigger();
            settle();
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                auto *dialog = qobject_cast<QDialog *>(widget);
                if (!dialog || !dialog->isVisible())
                    continue;
                if (!qobject_cast<QFileDialog *>(dialog)) {
                    QString name = QStringLiteral("dialog-%1-%2").arg(menu->title(), text).toLower();
                    save(dialog->grab(), name.remove(QLatin1Char('&')).replace(QLatin1Char(' '), QLatin1Char('-')));
                }
                dialog->reject();
            }
        }
    };
    // Dialogs are looked at, files are not asked for.
    m_window.menus()->setFileChooser([](const FileRequest &, QWidget *) { return QString(); });
    for (QAction *title : m_window.menus()->actions())
        takeFrom(title->menu(), takeFrom);
}

/// A picture of more shades than the machine has, with a hole.
void PictureTaker::takePictureImport()
{
    QImage dusk(320, 192, QImage::Format_ARGB32);
    for (int y = 0; y < dusk.height(); ++y) {
        for (int x = 0; x < dusk.width(); ++x) {
            const double sun = std::exp(-std::hypot(x - 220, y - 90) / 40);
            dusk.setPixel(x, y, qRgb(60 + y / 2 + int(90 * sun), 40 + y / 4 + int(120 * sun), 120 - y / 3));
        }
    }
    for (int y = 120; y < dusk.height(); ++y) {
        for (int x = 0; x < dusk.width(); ++x) {
            if (y > 160 + 24 * std::sin(x / 30.0))
                dusk.setPixel(x, y, 0);
        }
    }
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("dusk.png"));
    if (!dusk.save(file))
        return;
    ImportPictureDialog dialog(&m_window);
    dialog.show(file, PictureLoss::of(file, &m_window));
    settle();
    save(dialog.grab(), QStringLiteral("import-picture"));
    dialog.reject();

    SpriteEditor::ImportImageDialog sprites(&m_window);
    sprites.show(project(), file);
    sprites.findChildren<QRadioButton *>().constLast()->setChecked(true);
    sprites.findChild<ReductionBox *>()->setReduction(Dithering::Ordered);
    settle();
    save(sprites.grab(), QStringLiteral("import-sprites"));
    sprites.reject();

    ImageEditor::ImportDialog image(&m_window);
    image.setOffersNewPalette(true);
    image.show(dusk, project().palettes().constFirst(), {256, 192}, Palette::Size);
    image.findChild<ReductionBox *>()->setReduction(Dithering::Diffusion);
    settle();
    save(image.grab(), QStringLiteral("import-image"));
    image.reject();

    const QString map = folder.filePath(QStringLiteral("cave.map"));
    if (!project().maps().constFirst()->exportData(map))
        return;
    m_window.fileImport()->importFiles({map});
    ImportFileDialog &any = *m_window.fileImport()->dialog();
    any.findChild<QSpinBox *>(QStringLiteral("width"))->setValue(project().maps().constFirst()->size().width());
    any.refresh();
    settle();
    save(any.grab(), QStringLiteral("import-file"));
    any.reject();
}

void PictureTaker::takeExport()
{
    m_window.projectExport()->exportProject();
    ExportProjectDialog &dialog = *m_window.projectExport()->dialog();
    if (dialog.table()->rowCount() == 0)
        save(dialog.grab(), QStringLiteral("export-empty"));
    dialog.resize(920, 560);
    dialog.addOutputs();
    auto *add = dialog.findChild<AddOutputsDialog *>();
    settle();
    save(add->grab(), QStringLiteral("export-add"));
    add->accept();
    dialog.exportAll();
    dialog.reject();

    // since then something has been done
    const QDir folder = QFileInfo(m_window.projectController()->filePath()).dir();
    project().tileSets().constFirst()->setTileOffset(0, 1);
    project().maps().constFirst()->setTile({3, 3}, {5});
    QFile::remove(folder.filePath(QStringLiteral("Title.nxi")));
    m_window.projectExport()->exportProject();
    while (dialog.table()->isLooking())
        settle();
    auto *view = dialog.findChild<QTableView *>();
    view->selectRow(dialog.table()->rowOf(QStringLiteral("Lantern_Hill.map")));
    settle();
    save(dialog.grab(), QStringLiteral("export-project"));
    dialog.editOutput();
    settle();
    save(dialog.findChild<OutputDialog *>()->grab(), QStringLiteral("export-edit"));
    dialog.findChild<OutputDialog *>()->reject();
    dialog.reject();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 4)
        return 1;
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    QApplication::setApplicationName(QStringLiteral("Quenmora"));
    QApplication::setApplicationVersion(appVersion());
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QStringList arguments = QApplication::arguments();
    const bool dark = arguments.at(3) == QLatin1String("dark");
    if (dark)
        qputenv("QUENMORA_DARK", "1");
    Desktop::apply();
    Update::UpdateChecker::setFeedAddress({}); // pictures are taken without a network

    QDir().mkpath(QString::fromLocal8Bit(argv[2]));
    // A copy, so that nothing of this run is saved into the sample.
    const QString sample = home.filePath(QStringLiteral("sample.quenmora"));
    if (!QFile::copy(QString::fromLocal8Bit(argv[1]), sample))
        return 1;
    MainWindow window;
    window.resize(WindowSize.boundedTo(window.screen()->availableSize()));
    PictureTaker(window, QDir(QString::fromLocal8Bit(argv[2])), dark ? QStringLiteral("-dark") : QString(),
                 arguments.mid(4))
        .takeAll(sample);
    window.projectController()->close();
    return 0;
}
