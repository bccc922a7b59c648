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

/// The entries of a menu in a row: "-" for a separator, ">" after a submenu, the first shortcut in brackets.
QString described(const QMenu *menu)
{
    QStringList entries;
    for (const QAction *action : menu->actions()) {
        QString text = action->isSeparator() ? QStringLiteral("-") : plain(action);
        if (action->menu())
            text += '>';
        if (!action->shortcut().isEmpty())
            text += " [" + action->shortcut().toString() + ']';
        entries.append(text);
    }
    return entries.join(", ");
}

QString key(QKeySequence::StandardKey standard)
{
    const QString keys = QKeySequence(standard).toString();
    return keys.isEmpty() ? QString() : " [" + keys + ']';
}

/// The entries of the menu at a position of the bar that can be chosen.
QString enabledEntries(const MenuBar &bar, int position)
{
    const QAction *title = bar.actions().at(position);
    QStringList entries;
    for (const QAction *action : title->menu()->actions()) {
        if (title->isEnabled() && action->isEnabled() && !action->isSeparator())
            entries.append(plain(action));
    }
    return entries.join(", ");
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

class TestMenus : public QObject
{
    Q_OBJECT

private slots:
    void entriesAndShortcuts();
    void mnemonicsAreThereAndUnique();
    void fileEntriesHaveTheirIconsAndRoles();
    void entriesFollowProjectAndActiveAsset_data();
    void entriesFollowProjectAndActiveAsset();
    void paletteMenuNamesTheActivePalette();
    void recentMenuListsProjects();
    void openRemembersItsFolder();
    void newProjectAsksForAName();
    void fileRequests_data();
    void fileRequests();
    void exportFailureIsTold();
    void clipboardEntriesWorkEverywhereAndStartDisabled();
    void viewEntriesToggle();
    void dialogsAreBuiltWhenFirstUsed();
};

void TestMenus::entriesAndShortcuts()
{
    using Keys = QKeySequence;
    const MenuBar bar;
    const QStringList expected{
        QString("New%1, Open%2, Recent>, Save%3, Save As%4, Close%5, -, Preferences, -, Quit")
            .arg(key(Keys::New), key(Keys::Open), key(Keys::Save), key(Keys::SaveAs), key(Keys::Close)),
        QString("Cut%1, Copy%2, Paste%3, -, Select All%4, Clear Selection%5")
            .arg(key(Keys::Cut), key(Keys::Copy), key(Keys::Paste), key(Keys::SelectAll), key(Keys::Deselect)),
        "New Palette [Ctrl+Alt+P], Import, -, No Palette, Export",
        "New Tile Set [Ctrl+Alt+T], -, Create Animations, Swap Palette, Export, Export Attributes, Import>, -, "
        "Next Tile [Ctrl+]], Previous Tile [Ctrl+[], Tile List Magnification>",
        "New Map [Ctrl+Alt+M], -, Import, Export",
        "New [Ctrl+Shift+B], Import, -, Swap Palette, Export Data",
        "New Image",
        "Scratch Image Editor, Status Bar, Reset Layout, Window>",
        QString::fromUtf8("Check for Updates…, About"),
    };
    QStringList titles;
    for (int i = 0; i < bar.actions().size(); ++i) {
        titles.append(plain(bar.actions().at(i)));
        QCOMPARE(described(bar.actions().at(i)->menu()), expected.value(i));
    }
    QCOMPARE(titles, QStringList({"File", "Edit", "Palette", "Tiles", "Map", "Sprites", "Image", "View", "Help"}));
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

    const QScopedPointer<QToolBar> bar(menu.createToolBar(nullptr));
    QStringList entries;
    for (const QAction *action : bar->actions())
        entries.append(action->isSeparator() ? "-" : plain(action));
    QCOMPARE(entries.join(", "), "New, Open, Save, Save As, Close, -, Quit");
    QCOMPARE(bar->objectName(), "File Toolbar"); // the stored layout names it
    QCOMPARE(bar->iconSize(), QSize(18, 18));
    QCOMPARE(bar->contextMenuPolicy(), Qt::PreventContextMenu);
}

void TestMenus::entriesFollowProjectAndActiveAsset_data()
{
    QTest::addColumn<int>("menu"); // position in the bar
    QTest::addColumn<QString>("always");
    QTest::addColumn<QString>("withProject");
    QTest::addColumn<QString>("withAsset");
    const QString file = "New, Open, Recent, Save, Save As, Close, Preferences, Quit";
    QTest::newRow("File") << 0 << "New, Open, Recent, Preferences, Quit" << file << file;
    QTest::newRow("Palette") << 2 << ""
                             << "New Palette, Import"
                             << "New Palette, Import, Export";
    QTest::newRow("Tiles") << 3 << ""
                           << "New Tile Set"
                           << "New Tile Set, Create Animations, Swap Palette, Export, Export Attributes, Import, "
                              "Next Tile, Previous Tile, Tile List Magnification";
    QTest::newRow("Map") << 4 << ""
                         << "New Map, Import"
                         << "New Map, Import, Export";
    QTest::newRow("Sprites") << 5 << ""
                             << "New, Import"
                             << "New, Import, Swap Palette, Export Data";
    QTest::newRow("Image") << 6 << ""
                           << "New Image"
                           << "New Image";
}

void TestMenus::entriesFollowProjectAndActiveAsset()
{
    QFETCH(int, menu);
    QFETCH(QString, always);
    QFETCH(QString, withProject);
    Assets assets;
    MenuBar bar;
    QCOMPARE(enabledEntries(bar, menu), always);
    bar.setProject(&assets.project);
    QCOMPARE(enabledEntries(bar, menu), withProject);
    activate(bar, assets);
    QTEST(enabledEntries(bar, menu), "withAsset");
    // an asset that is deleted is no longer active
    assets.project.deleteSpriteBank(assets.sprites->id());
    assets.project.deleteMap(assets.map->id());
    assets.project.deleteTileSet(assets.tileSet->id());
    assets.project.deletePalette(assets.palette->id());
    QCOMPARE(enabledEntries(bar, menu), withProject);
    bar.setProject(nullptr);
    QCOMPARE(enabledEntries(bar, menu), always);
}

void TestMenus::paletteMenuNamesTheActivePalette()
{
    Assets assets;
    PaletteMenu menu;
    menu.setProject(&assets.project);
    const QAction *name = entry(&menu, "No Palette");
    menu.setPalette(assets.palette);
    QCOMPARE(name->text(), "Main");
    QVERIFY(!name->isEnabled());
    assets.palette->setName("Day & night");
    QCOMPARE(name->text(), "Day && night");
    menu.setPalette(nullptr);
    QCOMPARE(name->text(), "No Palette");
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
    FileMenu menu(&window);
    QSignalSpy created(&menu, &FileMenu::newProject);
    menu.showNewDialog();
    auto *dialog = window.findChild<QDialog *>();
    dialog->accept();
    QVERIFY(dialog->isVisible()); // a name is needed
    dialog->findChild<QLineEdit *>()->setText("Forest");
    dialog->accept();
    QCOMPARE(created, QList<QVariantList>({{"Forest"}}));
    menu.showNewDialog();
    QCOMPARE(dialog->findChild<QLineEdit *>()->text(), QString());
}

void TestMenus::fileRequests_data()
{
    QTest::addColumn<int>("menu");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("filters");
    QTest::addColumn<QString>("suffix"); // of a file to save; empty when one is opened
    QTest::addColumn<QString>("file"); // the answer to the request
    QTest::addColumn<int>("size"); // of what is saved, in bytes
    const QString pictures = "Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)";
    QTest::newRow("palette in") << 2 << "Import"
                                << "Import Palette" << QStringList{"Palette (*.pal *.npl)", "Images (*.png *.bmp)"}
                                << ""
                                << "" << 0;
    QTest::newRow("palette out") << 2 << "Export"
                                 << "Export Palette" << QStringList{"Palette (*.pal *.npl)"} << ".pal"
                                 << "x.npl" << 513;
    for (const auto &[file, size] : {std::pair{"x.bin", 4}, {"x.asm", 240}}) {
        QTest::newRow(file) << 3 << "Export Attributes"
                            << "Export tile attributes" << QStringList{"ASM Code (*.asm)", "Binary Data (*.bin)"}
                            << ".asm" << file << size;
    }
    QTest::newRow("map in") << 4 << "Import"
                            << "Import Map Data" << QStringList{"NextTiles (*.nxm *.nxt *.nxp *.nxb)", pictures} << ""
                            << "" << 0;
    QTest::newRow("map out") << 4 << "Export"
                             << "Export Map Data" << QStringList{"Map Data (*.map)"} << ".map"
                             << "x.map" << 8;
    QTest::newRow("sprites in") << 5 << "Import"
                                << "Select a file to import"
                                << QStringList{"Images (*.png *.bmp)", "Next sprites (*.spr)"} << ""
                                << "" << 0;
    QTest::newRow("sprites out") << 5 << "Export Data"
                                 << "Export Sprite Data" << QStringList{"Next Sprites (*.spr)"} << ".spr"
                                 << "x.spr" << 256;
}

void TestMenus::fileRequests()
{
    QFETCH(int, menu);
    QFETCH(QString, text);
    QFETCH(QString, file);
    const QTemporaryDir folder;
    Assets assets;
    MenuBar bar;
    bar.setProject(&assets.project);
    activate(bar, assets);
    QList<FileRequest> asked;
    bar.setFileChooser([&](const FileRequest &request, QWidget *) {
        asked.append(request);
        return file.isEmpty() ? QString() : folder.filePath(file);
    });
    entry(bar.actions().at(menu)->menu(), text)->trigger();
    QCOMPARE(asked.size(), 1);
    QTEST(asked[0].title, "title");
    QTEST(asked[0].nameFilters, "filters");
    QTEST(asked[0].defaultSuffix, "suffix");
    QCOMPARE(asked[0].acceptMode == QFileDialog::AcceptSave, !asked[0].defaultSuffix.isEmpty());
    if (!file.isEmpty())
        QTEST(int(QFileInfo(folder.filePath(file)).size()), "size");
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
    bar.tileMenu()->setTileSet(nullptr);
    QTest::ignoreMessage(QtWarningMsg, "Null tileset");
    bar.tileMenu()->exportAccepted(1, 1, false);
}

void TestMenus::clipboardEntriesWorkEverywhereAndStartDisabled()
{
    EditMenu menu;
    QStringList asked;
    connect(&menu, &EditMenu::cut, this, [&asked] { asked.append("Cut"); });
    connect(&menu, &EditMenu::copy, this, [&asked] { asked.append("Copy"); });
    connect(&menu, &EditMenu::paste, this, [&asked] { asked.append("Paste"); });
    connect(&menu, &EditMenu::selectAll, this, [&asked] { asked.append("Select All"); });
    connect(&menu, &EditMenu::selectNone, this, [&asked] { asked.append("Clear Selection"); });
    QAction undo("&Undo");
    QAction redo("&Redo");
    menu.setUndoActions(&undo, &redo);
    QCOMPARE(menu.actions().first(2), QList<QAction *>({&undo, &redo}));
    QVERIFY(menu.actions().at(2)->isSeparator());
    QCOMPARE(undo.shortcuts(), QKeySequence::keyBindings(QKeySequence::Undo));
    const QStringList texts{"Cut", "Copy", "Paste", "Select All", "Clear Selection"};
    for (const QString &text : texts)
        QVERIFY(!entry(&menu, text)->isEnabled());
    menu.setClipboardEnabled(true);
    for (const QString &text : texts) {
        QCOMPARE(entry(&menu, text)->shortcutContext(), Qt::ApplicationShortcut);
        entry(&menu, text)->trigger();
    }
    QCOMPARE(asked, texts);
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
