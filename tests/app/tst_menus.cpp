#include "app/menus/editmenu.h"
#include "app/menus/filemenu.h"
#include "app/menus/helpmenu.h"
#include "app/menus/imagemenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/menubar.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "app/menus/viewmenu.h"
#include "support/testmain.h"

#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

namespace {

using Keys = QKeySequence;

/// What an entry of a menu should be; a text of "-" is a separator, one that ends in ">" a submenu.
struct Entry
{
    QString text;
    Keys shortcut;
};
using Entries = QList<Entry>;

QString plain(const QAction *action)
{
    return QString(action->text()).remove(u'&');
}

QAction *entry(const QMenu *menu, const QString &text)
{
    for (QAction *action : menu->actions()) {
        if (plain(action) == text)
            return action;
    }
    return nullptr;
}

QChar mnemonic(const QString &text)
{
    const qsizetype at = text.indexOf(u'&');
    return at < 0 ? QChar() : text.at(at + 1).toLower();
}

/// A project with one asset of each kind that a menu can be given.
struct Assets
{
    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Main");
    QPointer<TileSet> tileSet = project.createTileSet("Tiles", palette->id(), 4);
    QPointer<Map> map = project.createMap("Level", tileSet->id(), {2, 2});
    QPointer<SpriteBank> sprites = project.createSpriteBank(Quenmora::EightBit, "Hero", palette->id());
};

void activate(MenuBar &bar, const Assets &assets)
{
    bar.paletteMenu()->setPalette(assets.palette);
    bar.tileMenu()->setTileSet(assets.tileSet);
    bar.mapMenu()->setMap(assets.map);
    bar.spriteMenu()->setSpriteBank(assets.sprites);
}

} // namespace

Q_DECLARE_METATYPE(Entries)

class TestMenus : public QObject
{
    Q_OBJECT

private slots:
    void menusStandInTheirOrder();
    void entriesAndShortcuts_data();
    void entriesAndShortcuts();
    void mnemonicsAreThereAndUnique();
    void fileEntriesHaveTheirIconsAndRoles();
    void fileToolBar();
    void entriesFollowProjectAndActiveAsset_data();
    void entriesFollowProjectAndActiveAsset();
    void deletedAssetIsNoLongerActive();
    void paletteMenuNamesTheActivePalette();
    void recentMenuListsProjects();
    void openRemembersItsFolder();
    void newProjectAsksForAName();
    void fileRequests_data();
    void fileRequests();
    void exportsAreWritten_data();
    void exportsAreWritten();
    void exportFailureIsTold();
    void tileExportWithoutTileSetIsLogged();
    void clipboardEntriesWorkEverywhereAndStartDisabled();
    void undoEntriesComeFirst();
    void viewEntriesToggle();
    void dialogsAreBuiltWhenFirstUsed();
};

void TestMenus::menusStandInTheirOrder()
{
    const MenuBar bar;
    QStringList titles;
    for (const QAction *action : bar.actions())
        titles.append(plain(action));
    QCOMPARE(titles, QStringList({"File", "Edit", "Palette", "Tiles", "Map", "Sprites", "Image", "View", "Help"}));
}

void TestMenus::entriesAndShortcuts_data()
{
    QTest::addColumn<Entries>("entries");
    QTest::newRow("File") << Entries{{"New", Keys::New},
                                     {"Open", Keys::Open},
                                     {"Recent>", {}},
                                     {"Save", Keys::Save},
                                     {"Save As", Keys::SaveAs},
                                     {"Close", Keys::Close},
                                     {"-", {}},
                                     {"Preferences", {}},
                                     {"-", {}},
                                     {"Quit", {}}};
    QTest::newRow("Edit") << Entries{{"Cut", Keys::Cut},
                                     {"Copy", Keys::Copy},
                                     {"Paste", Keys::Paste},
                                     {"-", {}},
                                     {"Select All", Keys::SelectAll},
                                     {"Clear Selection", Keys::Deselect}};
    QTest::newRow("Palette") << Entries{
        {"New Palette", Keys("Ctrl+Alt+P")}, {"Import", {}}, {"-", {}}, {"No Palette", {}}, {"Export", {}}};
    QTest::newRow("Tiles") << Entries{{"New Tile Set", Keys("Ctrl+Alt+T")},
                                      {"-", {}},
                                      {"Create Animations", {}},
                                      {"Swap Palette", {}},
                                      {"Export", {}},
                                      {"Export Attributes", {}},
                                      {"Import>", {}},
                                      {"-", {}},
                                      {"Next Tile", Keys("Ctrl+]")},
                                      {"Previous Tile", Keys("Ctrl+[")},
                                      {"Tile List Magnification>", {}}};
    QTest::newRow("Map") << Entries{{"New Map", Keys("Ctrl+Alt+M")}, {"-", {}}, {"Import", {}}, {"Export", {}}};
    QTest::newRow("Sprites") << Entries{
        {"New", Keys("Ctrl+Shift+B")}, {"Import", {}}, {"-", {}}, {"Swap Palette", {}}, {"Export Data", {}}};
    QTest::newRow("Image") << Entries{{"New Image", {}}};
    QTest::newRow("View") << Entries{
        {"Scratch Image Editor", {}}, {"Status Bar", {}}, {"Reset Layout", {}}, {"Window>", {}}};
    QTest::newRow("Help") << Entries{{QString::fromUtf8("Check for Updates…"), {}}, {"About", {}}};
}

void TestMenus::entriesAndShortcuts()
{
    QFETCH(Entries, entries);
    const MenuBar bar;
    const QMenu *menu = nullptr;
    for (const QAction *action : bar.actions()) {
        if (plain(action) == QLatin1String(QTest::currentDataTag()))
            menu = action->menu();
    }
    QVERIFY(menu);
    QCOMPARE(menu->actions().size(), entries.size());
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const QAction *action = menu->actions().at(i);
        QCOMPARE(action->isSeparator() ? "-" : plain(action) + (action->menu() ? ">" : ""), entries[i].text);
        QCOMPARE(action->shortcut(), entries[i].shortcut);
    }
}

void TestMenus::mnemonicsAreThereAndUnique()
{
    const MenuBar bar;
    const auto check = [](const QList<QAction *> &actions) {
        QString seen;
        for (const QAction *action : actions) {
            if (action->isSeparator() || plain(action) == "No Palette" || plain(action) == "None")
                continue;
            const QChar key = mnemonic(action->text());
            QVERIFY2(!key.isNull(), qPrintable(action->text()));
            QVERIFY2(!seen.contains(key), qPrintable(action->text()));
            seen.append(key);
        }
    };
    check(bar.actions());
    for (const QAction *action : bar.actions()) {
        check(action->menu()->actions());
        for (const QAction *inner : action->menu()->actions()) {
            if (inner->menu())
                check(inner->menu()->actions());
        }
    }
    // above the clipboard entries the shell puts these
    for (const QAction *action : bar.editMenu()->actions())
        QVERIFY(mnemonic(action->text()) != u'u' && mnemonic(action->text()) != u'r');
}

void TestMenus::fileEntriesHaveTheirIconsAndRoles()
{
    const FileMenu menu;
    for (const char *text : {"New", "Open", "Save", "Save As", "Close", "Quit"}) {
        const QIcon icon = entry(&menu, text)->icon();
        QVERIFY2(!icon.isNull() && !icon.pixmap(18, 18).isNull(), text);
    }
    QVERIFY(entry(&menu, "Preferences")->icon().isNull());
    QCOMPARE(entry(&menu, "Preferences")->menuRole(), QAction::PreferencesRole);
    QCOMPARE(entry(&menu, "Quit")->menuRole(), QAction::QuitRole);
    const HelpMenu help;
    QCOMPARE(entry(&help, QString::fromUtf8("Check for Updates…"))->menuRole(), QAction::NoRole);
}

void TestMenus::fileToolBar()
{
    const FileMenu menu;
    const QScopedPointer<QToolBar> bar(menu.createToolBar(nullptr));
    QStringList entries;
    for (const QAction *action : bar->actions())
        entries.append(action->isSeparator() ? "-" : plain(action));
    QCOMPARE(entries, QStringList({"New", "Open", "Save", "Save As", "Close", "-", "Quit"}));
    QCOMPARE(bar->objectName(), "File Toolbar");
    QCOMPARE(bar->iconSize(), QSize(18, 18));
    QCOMPARE(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
    QCOMPARE(bar->contextMenuPolicy(), Qt::PreventContextMenu);
}

void TestMenus::entriesFollowProjectAndActiveAsset_data()
{
    QTest::addColumn<int>("menu"); // position in the bar
    QTest::addColumn<QStringList>("always"); // enabled without a project; a menu is disabled as a whole without any
    QTest::addColumn<QStringList>("withProject");
    QTest::addColumn<QStringList>("withAsset");
    const QStringList file{"New", "Open", "Recent", "Preferences", "Quit"};
    const QStringList fileOpen = file + QStringList{"Save", "Save As", "Close"};
    QTest::newRow("File") << 0 << file << fileOpen << fileOpen;
    QTest::newRow("Palette") << 2 << QStringList() << QStringList{"New Palette", "Import"}
                             << QStringList{"New Palette", "Import", "Export"};
    QTest::newRow("Tiles") << 3 << QStringList() << QStringList{"New Tile Set"}
                           << QStringList{"New Tile Set", "Create Animations", "Swap Palette",
                                          "Export",       "Export Attributes", "Import",
                                          "Next Tile",    "Previous Tile",     "Tile List Magnification"};
    QTest::newRow("Map") << 4 << QStringList() << QStringList{"New Map", "Import"}
                         << QStringList{"New Map", "Import", "Export"};
    QTest::newRow("Sprites") << 5 << QStringList() << QStringList{"New", "Import"}
                             << QStringList{"New", "Import", "Swap Palette", "Export Data"};
    QTest::newRow("Image") << 6 << QStringList() << QStringList{"New Image"} << QStringList{"New Image"};
}

void TestMenus::entriesFollowProjectAndActiveAsset()
{
    QFETCH(int, menu);
    QFETCH(QStringList, always);
    QFETCH(QStringList, withProject);
    QFETCH(QStringList, withAsset);
    Assets assets;
    MenuBar bar;
    const auto enabled = [&] {
        QStringList texts;
        const QAction *title = bar.actions().at(menu);
        for (const QAction *action : title->menu()->actions()) {
            if (title->isEnabled() && action->isEnabled() && !action->isSeparator())
                texts.append(plain(action));
        }
        texts.sort();
        return texts;
    };
    for (QStringList *texts : {&always, &withProject, &withAsset})
        texts->sort();
    QCOMPARE(enabled(), always);
    bar.setProject(&assets.project);
    QCOMPARE(enabled(), withProject);
    activate(bar, assets);
    QCOMPARE(enabled(), withAsset);
    bar.setProject(nullptr);
    QCOMPARE(enabled(), always);
}

void TestMenus::deletedAssetIsNoLongerActive()
{
    Assets assets;
    MenuBar bar;
    bar.setProject(&assets.project);
    activate(bar, assets);
    assets.project.deleteSpriteBank(assets.sprites->id());
    assets.project.deleteMap(assets.map->id());
    assets.project.deleteTileSet(assets.tileSet->id());
    assets.project.deletePalette(assets.palette->id());
    QVERIFY(!entry(bar.spriteMenu(), "Export Data")->isEnabled());
    QVERIFY(!entry(bar.mapMenu(), "Export")->isEnabled());
    QVERIFY(!entry(bar.tileMenu(), "Next Tile")->isEnabled());
    QVERIFY(!entry(bar.paletteMenu(), "Export")->isEnabled());
    QVERIFY(entry(bar.paletteMenu(), "No Palette"));
}

void TestMenus::paletteMenuNamesTheActivePalette()
{
    Assets assets;
    MenuBar bar;
    bar.setProject(&assets.project);
    bar.paletteMenu()->setPalette(assets.palette);
    QVERIFY(entry(bar.paletteMenu(), "Main") && !entry(bar.paletteMenu(), "Main")->isEnabled());
    assets.palette->setName("Night");
    QVERIFY(entry(bar.paletteMenu(), "Night"));
    bar.paletteMenu()->setPalette(nullptr);
    QVERIFY(entry(bar.paletteMenu(), "No Palette"));
}

void TestMenus::recentMenuListsProjects()
{
    FileMenu menu;
    const auto texts = [&menu] {
        QStringList found;
        for (const QAction *action : menu.recentMenu()->actions())
            found.append(action->isSeparator() ? "-" : action->text());
        return found;
    };
    QCOMPARE(texts(), QStringList("None"));
    QVERIFY(!menu.recentMenu()->actions().constFirst()->isEnabled());

    menu.setRecentFiles({"/one/game.quenmora", "/two/game.quenmora"});
    menu.addRecentFile("/three/cut & paste.quenmora");
    QCOMPARE(texts(), QStringList({"cut && paste.quenmora", "game.quenmora", "game.quenmora", "-", "&Clear"}));
    QCOMPARE(menu.recentMenu()->actions().at(2)->property("filePath"), QVariant("/two/game.quenmora"));

    // opening a project puts it in front, and rebuilds the menu while its entry is being served
    connect(&menu, &FileMenu::openProject, &menu, &FileMenu::addRecentFile);
    QSignalSpy opened(&menu, &FileMenu::openProject);
    menu.recentMenu()->actions().at(2)->trigger();
    QCOMPARE(opened, QList<QVariantList>({{"/two/game.quenmora"}}));
    QCOMPARE(menu.recentFiles().constFirst(), "/two/game.quenmora");
    menu.recentMenu()->actions().constLast()->trigger();
    QCOMPARE(menu.recentFiles(), QStringList());
    QCOMPARE(texts(), QStringList("None"));
}

void TestMenus::openRemembersItsFolder()
{
    const QTemporaryDir folder;
    FileMenu menu;
    QCOMPARE(menu.openFolder(), QDir::currentPath());
    menu.setOpenFolder(folder.path());
    QString answer;
    FileRequest asked;
    menu.setFileChooser([&](const FileRequest &request, QWidget *) {
        asked = request;
        return answer;
    });
    QSignalSpy opened(&menu, &FileMenu::openProject);
    entry(&menu, "Open")->trigger(); // and given up
    QCOMPARE(opened.size(), 0);
    QCOMPARE(asked.title, "Open project");
    QCOMPARE(asked.nameFilters, QStringList("Project file (*.quenmora)"));
    QCOMPARE(asked.acceptMode, QFileDialog::AcceptOpen);
    QCOMPARE(asked.defaultSuffix, "quenmora");
    QCOMPARE(asked.folder, folder.path());

    answer = folder.filePath("sub/game.quenmora");
    entry(&menu, "Open")->trigger();
    QCOMPARE(opened, QList<QVariantList>({{answer}}));
    QCOMPARE(menu.openFolder(), folder.filePath("sub"));
}

void TestMenus::newProjectAsksForAName()
{
    QWidget window;
    MenuBar bar(&window);
    QSignalSpy created(bar.fileMenu(), &FileMenu::newProject);
    entry(bar.fileMenu(), "New")->trigger();
    auto *dialog = window.findChild<QDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    dialog->accept();
    QVERIFY(dialog->isVisible()); // a name is needed
    dialog->findChild<QLineEdit *>()->setText("Forest");
    dialog->accept();
    QCOMPARE(created, QList<QVariantList>({{"Forest"}}));
    entry(bar.fileMenu(), "New")->trigger();
    QCOMPARE(dialog->findChild<QLineEdit *>()->text(), QString());
}

void TestMenus::fileRequests_data()
{
    QTest::addColumn<int>("menu");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("filters");
    QTest::addColumn<QString>("suffix"); // of a file to save; empty when one is opened
    QTest::newRow("palette in") << 2 << "Import"
                                << "Import Palette" << QStringList{"Palette (*.pal *.npl)", "Images (*.png *.bmp)"}
                                << QString();
    QTest::newRow("palette out") << 2 << "Export"
                                 << "Export Palette" << QStringList{"Palette (*.pal *.npl)"} << ".pal";
    QTest::newRow("attributes out") << 3 << "Export Attributes"
                                    << "Export tile attributes"
                                    << QStringList{"ASM Code (*.asm)", "Binary Data (*.bin)"} << ".asm";
    QTest::newRow("map in") << 4 << "Import"
                            << "Import Map Data"
                            << QStringList{"NextTiles (*.nxm *.nxt *.nxp *.nxb)",
                                           "Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)"}
                            << QString();
    QTest::newRow("map out") << 4 << "Export"
                             << "Export Map Data" << QStringList{"Map Data (*.map)"} << ".map";
    QTest::newRow("sprites in") << 5 << "Import"
                                << "Select a file to import"
                                << QStringList{"Images (*.png *.bmp)", "Next sprites (*.spr)"} << QString();
    QTest::newRow("sprites out") << 5 << "Export Data"
                                 << "Export Sprite Data" << QStringList{"Next Sprites (*.spr)"} << ".spr";
}

void TestMenus::fileRequests()
{
    QFETCH(int, menu);
    QFETCH(QString, text);
    Assets assets;
    MenuBar bar;
    bar.setProject(&assets.project);
    activate(bar, assets);
    QList<FileRequest> asked;
    bar.setFileChooser([&](const FileRequest &request, QWidget *) {
        asked.append(request);
        return QString();
    });
    entry(bar.actions().at(menu)->menu(), text)->trigger();
    QCOMPARE(asked.size(), 1);
    QTEST(asked[0].title, "title");
    QTEST(asked[0].nameFilters, "filters");
    QTEST(asked[0].defaultSuffix, "suffix");
    QCOMPARE(asked[0].acceptMode == QFileDialog::AcceptSave, !asked[0].defaultSuffix.isEmpty());
}

void TestMenus::exportsAreWritten_data()
{
    QTest::addColumn<int>("menu");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("size"); // bytes
    QTest::newRow("palette") << 2 << "Export"
                             << "x.npl" << 513;
    QTest::newRow("attributes, binary") << 3 << "Export Attributes"
                                        << "x.bin" << 4;
    QTest::newRow("map of 2 x 2 cells") << 4 << "Export"
                                        << "x.map" << 8;
    QTest::newRow("one sprite") << 5 << "Export Data"
                                << "x.spr" << 256;
}

void TestMenus::exportsAreWritten()
{
    QFETCH(int, menu);
    QFETCH(QString, text);
    QFETCH(QString, file);
    const QTemporaryDir folder;
    Assets assets;
    MenuBar bar;
    bar.setProject(&assets.project);
    activate(bar, assets);
    bar.setFileChooser([&](const FileRequest &, QWidget *) { return folder.filePath(file); });
    QSignalSpy failed(&bar, &MenuBar::failed);
    entry(bar.actions().at(menu)->menu(), text)->trigger();
    QTEST(int(QFileInfo(folder.filePath(file)).size()), "size");
    QCOMPARE(failed.size(), 0);
}

void TestMenus::exportFailureIsTold()
{
    Assets assets;
    MenuBar bar;
    bar.setProject(&assets.project);
    activate(bar, assets);
    bar.setFileChooser([](const FileRequest &, QWidget *) { return QString("/nowhere/x.bin"); });
    QSignalSpy failed(&bar, &MenuBar::failed);
    QTest::ignoreMessage(QtWarningMsg, "Export failed!");
    QTest::ignoreMessage(QtWarningMsg, "Failed to save data");
    bar.tileMenu()->exportAccepted(1, 4, false);
    entry(bar.paletteMenu(), "Export")->trigger();
    entry(bar.mapMenu(), "Export")->trigger();
    entry(bar.spriteMenu(), "Export Data")->trigger();
    entry(bar.tileMenu(), "Export Attributes")->trigger();
    const QVariantList told{"There was a problem exporting data", "Save Error"};
    QCOMPARE(failed, QList<QVariantList>(5, told));
}

void TestMenus::tileExportWithoutTileSetIsLogged()
{
    MenuBar bar;
    bar.setFileChooser([](const FileRequest &, QWidget *) -> QString { qFatal("nothing to export"); });
    QTest::ignoreMessage(QtWarningMsg, "Null tileset");
    bar.tileMenu()->exportAccepted(1, 1, false);
}

void TestMenus::clipboardEntriesWorkEverywhereAndStartDisabled()
{
    EditMenu menu;
    QSignalSpy cut(&menu, &EditMenu::cut);
    QSignalSpy copy(&menu, &EditMenu::copy);
    QSignalSpy paste(&menu, &EditMenu::paste);
    QSignalSpy all(&menu, &EditMenu::selectAll);
    QSignalSpy none(&menu, &EditMenu::selectNone);
    const QList<QPair<QString, QSignalSpy *>> entries{
        {"Cut", &cut}, {"Copy", &copy}, {"Paste", &paste}, {"Select All", &all}, {"Clear Selection", &none}};
    for (const auto &[text, spy] : entries) {
        QAction *action = entry(&menu, text);
        QVERIFY(!action->isEnabled());
        QCOMPARE(action->shortcutContext(), Qt::ApplicationShortcut);
        menu.setClipboardEnabled(true);
        action->trigger();
        QCOMPARE(spy->size(), 1);
        menu.setClipboardEnabled(false);
    }
    QCOMPARE(cut.size() + copy.size() + paste.size() + all.size() + none.size(), 5);
}

void TestMenus::undoEntriesComeFirst()
{
    EditMenu menu;
    QAction undo("&Undo");
    QAction redo("&Redo");
    menu.setUndoActions(&undo, &redo);
    QCOMPARE(menu.actions().first(2), QList<QAction *>({&undo, &redo}));
    QVERIFY(menu.actions().at(2)->isSeparator());
    QCOMPARE(undo.shortcuts(), QKeySequence::keyBindings(QKeySequence::Undo));
    QCOMPARE(redo.shortcut(), QKeySequence(QKeySequence::Redo));
}

void TestMenus::viewEntriesToggle()
{
    ViewMenu menu;
    QSignalSpy scratch(&menu, &ViewMenu::toggleScratch);
    QSignalSpy statusBar(&menu, &ViewMenu::toggleStatusBar);
    QVERIFY(!menu.isChecked(ViewMenu::CheckableItem::ScratchEditor));
    QVERIFY(menu.isChecked(ViewMenu::CheckableItem::StatusBar));
    menu.setChecked(ViewMenu::CheckableItem::ScratchEditor, true);
    menu.setChecked(ViewMenu::CheckableItem::ScratchEditor, true);
    entry(&menu, "Status Bar")->trigger();
    QCOMPARE(scratch, QList<QVariantList>({{true}}));
    QCOMPARE(statusBar, QList<QVariantList>({{false}}));

    QAction project("Project");
    QAction palette("Palette Editor");
    menu.setDockActions({&project, &palette});
    QCOMPARE(entry(&menu, "Window")->menu()->actions(), QList<QAction *>({&project, &palette}));
}

void TestMenus::dialogsAreBuiltWhenFirstUsed()
{
    Assets assets;
    QWidget window;
    MenuBar bar(&window);
    bar.setProject(&assets.project);
    activate(bar, assets);
    QCOMPARE(window.findChildren<QDialog *>().size(), 0);
    const QList<QAction *> entries{entry(bar.paletteMenu(), "New Palette"),
                                   entry(bar.tileMenu(), "New Tile Set"),
                                   entry(bar.tileMenu(), "Create Animations"),
                                   entry(bar.tileMenu(), "Swap Palette"),
                                   entry(bar.tileMenu(), "Export"),
                                   entry(bar.mapMenu(), "New Map"),
                                   entry(bar.spriteMenu(), "New"),
                                   entry(bar.spriteMenu(), "Swap Palette"),
                                   entry(bar.imageMenu(), "New Image"),
                                   entry(bar.tileMenu(), "Import")->menu()->actions().constFirst()};
    for (QAction *action : entries) {
        action->trigger();
        action->trigger();
    }
    QCOMPARE(window.findChildren<QDialog *>(Qt::FindDirectChildrenOnly).size(), entries.size());
}

QUENMORA_TEST_MAIN(TestMenus)
#include "tst_menus.moc"
