#include "app/menus/helpmenu.h"
#include "app/menus/imagemenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "app/menus/viewmenu.h"
#include "app/platform.h"
#include "support/windowscene.h"

using EditorInput::entry;

namespace {

QString plain(const QAction *action)
{
    return QString(action->text()).remove(u'&');
}

/// Entries in a row: "-" for a separator, ">" after a submenu, the first shortcut in brackets.
QString described(const QWidget *menu)
{
    QStringList entries;
    for (const QAction *action : menu->actions()) {
        const QString keys = action->shortcut().toString();
        entries.append((action->isSeparator() ? QStringLiteral("-") : plain(action)) + (action->menu() ? ">" : "")
                       + (keys.isEmpty() ? QString() : " [" + keys + ']'));
    }
    return entries.join(", ");
}

QChar mnemonic(const QAction *action)
{
    const qsizetype at = action->text().indexOf(u'&');
    return at < 0 ? QChar() : action->text().at(at + 1).toLower();
}

/// A menu bar with a project that has one asset of each kind that a menu can be given.
struct Shell
{
    Shell()
    {
        bar.setProject(&project);
        actions.serve(bar);
    }
    void activate()
    {
        bar.paletteMenu()->setPalette(palette);
        bar.tileMenu()->setTileSet(tileSet);
        bar.mapMenu()->setMap(map);
        bar.spriteMenu()->setSpriteBank(sprites);
    }
    QMenu *menu(int position) const { return bar.actions().at(position)->menu(); }
    /// The entries of the menu at a position of the bar that can be chosen.
    QString enabled(int position) const
    {
        QStringList entries;
        for (const QAction *action : menu(position)->actions()) {
            if (bar.actions().at(position)->isEnabled() && action->isEnabled() && !action->isSeparator())
                entries.append(plain(action));
        }
        return entries.join(", ");
    }

    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Main");
    QPointer<TileSet> tileSet = project.createTileSet("Tiles", palette->id(), 4);
    QPointer<Map> map = project.createMap("Level", tileSet->id(), {2, 2});
    QPointer<SpriteBank> sprites = project.createSpriteBank(Quenmora::EightBit, "Hero", palette->id());
    QWidget window;
    MenuBar bar{&window};
    ProjectActions actions{[this] { return &project; }, &window};
};

} // namespace

class TestMenus : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void entriesAndShortcuts()
    {
        const auto key = [](QKeySequence::StandardKey standard) {
            const auto without = Platform::keysWithoutStandard(standard);
            const QString keys = (without.isEmpty() ? QKeySequence(standard) : without.first()).toString();
            return keys.isEmpty() ? QString() : " [" + keys + ']';
        };
        using Keys = QKeySequence;
        const QStringList expected{
            QString("New%1, Open%2, Recent>, Save%3, Save As%4, Close%5, -, Import\u2026, -, "
                    "Export Project\u2026, Export Again [F9], -, Preferences, -, Quit%6")
                .arg(key(Keys::New), key(Keys::Open), key(Keys::Save), key(Keys::SaveAs), key(Keys::Close),
                     Platform::keysWithoutStandard(Keys::Quit).isEmpty() ? QString() : key(Keys::Quit)),
            QString("Cut%1, Copy%2, Paste%3, -, Select All%4, Clear Selection%5")
                .arg(key(Keys::Cut), key(Keys::Copy), key(Keys::Paste), key(Keys::SelectAll), key(Keys::Deselect)),
            "New Palette [Ctrl+Alt+P], Import, -, No Palette, Export, -, Import Again",
            "New Tile Set [Ctrl+Alt+T], -, Create Animations, Swap Palette, Export, Export Attributes, Import>, -, "
            "Next Tile [Ctrl+]], Previous Tile [Ctrl+[], Tile List Magnification>, -, Import Again",
            "New Map [Ctrl+Alt+M], -, Import, Export, -, Import Again",
            "New [Ctrl+Shift+B], Import, -, Swap Palette, Export Data, -, Import Again",
            "New Image, -, Swap Palette, -, Import Again",
            "Scratch Image Editor, Status Bar, Reset Layout, Window>",
            QString::fromUtf8("Check for Updates…, About, -, Command Palette\u2026 [Ctrl+Shift+P], Keyboard "
                              "Shortcuts\u2026, -, Guide [F1], Sample Project"),
        };
        const MenuBar bar;
        QCOMPARE(described(&bar), "File>, Edit>, Palette>, Tiles>, Map>, Sprites>, Image>, View>, Help>");
        for (int i = 0; i < bar.actions().size(); ++i)
            QCOMPARE(described(bar.actions().at(i)->menu()), expected.value(i));
        const QScopedPointer<QToolBar> tools(bar.fileMenu()->createToolBar(nullptr));
        QCOMPARE(tools->objectName(), "File Toolbar"); // the stored layout names it
        for (const QAction *action : tools->actions())
            QVERIFY2(action->isSeparator() || !action->icon().pixmap(18, 18).isNull(), qPrintable(action->text()));
    }

    void mnemonicsAreThereAndUnique()
    {
        openWindow(); // where menus have what editors bring
        openSample();
        QList<QWidget *> menus{m_window->menus()};
        for (const QAction *title : m_window->menus()->actions())
            menus.append(title->menu());
        for (const QWidget *menu : menus) {
            QString seen;
            for (const QAction *action : menu->actions()) {
                if (action->isSeparator() || (action->objectName().isEmpty() && !action->menu()))
                    continue; // names of assets
                QVERIFY2(!mnemonic(action).isNull() && !seen.contains(mnemonic(action)), qPrintable(action->text()));
                seen.append(mnemonic(action));
            }
        }
        m_window.reset();
    }

    void entriesFollowProjectAndActiveAsset()
    {
        // the position of a menu in the bar, what can be chosen with a project, and what besides with an active asset
        for (const auto &[menu, withProject, withAsset] :
             {std::tuple(0,
                         QString("New, Open, Recent, Save, Save As, Close, Import\u2026, Export Project\u2026, Export "
                                 "Again, Preferences, Quit"),
                         QString()),
              {2, "New Palette, Import", ", Export"},
              {3, "New Tile Set",
               ", Create Animations, Swap Palette, Export, Export Attributes, Import, Next Tile, Previous Tile, "
               "Tile List Magnification"},
              {4, "New Map, Import", ", Export"},
              {5, "New, Import", ", Swap Palette, Export Data"},
              {6, "New Image", ""}}) {
            Shell shell;
            const QAction *name = entry(*shell.bar.paletteMenu(), "No Palette");
            QCOMPARE(shell.enabled(menu), withProject);
            shell.activate();
            QCOMPARE(shell.enabled(menu), withProject + withAsset);
            shell.palette->setName("Day & night");
            QVERIFY(name->text() == "Day && night" && !name->isEnabled());
            // an asset that is deleted is no longer active
            shell.project.deleteSpriteBank(shell.sprites->id());
            shell.project.deleteMap(shell.map->id());
            shell.project.deleteTileSet(shell.tileSet->id());
            shell.project.deletePalette(shell.palette->id());
            QCOMPARE(shell.enabled(menu), withProject);
            QCOMPARE(name->text(), "No Palette");
            shell.bar.setProject(nullptr);
            QCOMPARE(shell.enabled(menu), menu == 0 ? "New, Open, Recent, Preferences, Quit" : "");
        }
    }

    void recentMenuListsProjects()
    {
        FileMenu menu;
        const auto shown = [&menu] { return described(menu.recentMenu()); };
        QCOMPARE(shown(), "None");
        QVERIFY(!menu.recentMenu()->actions().constFirst()->isEnabled());
        menu.setRecentFiles({"/one/game.quenmora", "/two/game.quenmora"});
        menu.addRecentFile("/three/cut & paste.quenmora");
        QCOMPARE(shown(), "cut  paste.quenmora, game.quenmora, game.quenmora, -, Clear");
        QCOMPARE(menu.recentMenu()->actions().at(0)->text(), "cut && paste.quenmora");

        // opening a project puts it in front, and rebuilds the menu while its entry is being served
        connect(&menu, &FileMenu::openProject, &menu, &FileMenu::addRecentFile);
        menu.recentMenu()->actions().at(2)->trigger();
        QCOMPARE(menu.recentFiles().constFirst(), "/two/game.quenmora");
        menu.recentMenu()->actions().constLast()->trigger();
        QVERIFY(menu.recentFiles().isEmpty() && shown() == "None");
    }

    void opensAFileOfTheRememberedFolder()
    {
        FileMenu menu;
        QString asked;
        QString answer;
        menu.setFileChooser([&](const FileRequest &request, QWidget *) { return (asked = request.folder, answer); });
        QSignalSpy opened(&menu, &FileMenu::openProject);
        // without a remembered folder, or with one that is gone, it starts where the program did
        for (const QString &remembered : {QString(""), m_folder("gone"), QString("~"), m_folder()}) {
            menu.setOpenFolder(remembered);
            entry(menu, "Open")->trigger(); // and given up
            QCOMPARE(asked, remembered == m_folder() ? m_folder() : QDir::currentPath());
        }
        answer = m_folder("sub/game.quenmora");
        menu.showOpenDialog();
        QCOMPARE(opened, QList<QVariantList>({{answer}}));
        QCOMPARE(menu.openFolder(), m_folder("sub"));
        menu.setOpenFolder("");
        QCOMPARE(menu.openFolder(), QDir::currentPath());
    }

    void dialogsMakeWhatIsEntered()
    {
        Shell shell;
        shell.activate();
        const auto dialogs = [&] { return shell.window.findChildren<QDialog *>(Qt::FindDirectChildrenOnly); };
        QVERIFY(dialogs().isEmpty()); // they are built when they are first used
        const auto enter = [&](int menu, const char *text, const char *name, const QStringList &choices,
                               bool checked = false) {
            entry(*shell.menu(menu), text)->trigger();
            for (QDialog *dialog : dialogs()) {
                if (!dialog->isVisible())
                    continue;
                dialog->findChild<QLineEdit *>()->setText(name);
                for (int i = 0; i < choices.size(); ++i)
                    dialog->findChildren<QComboBox *>().at(i)->setCurrentText(choices[i]);
                if (auto *box = dialog->findChild<QCheckBox *>())
                    box->setChecked(checked);
                dialog->accept();
            }
        };
        const Project &project = shell.project;
        enter(2, "New Palette", "Night", {});
        QCOMPARE(project.palettes().last()->name(), "Night");
        enter(3, "New Tile Set", "Cave", {"New palette of the same name", "256"});
        QCOMPARE(project.tileSets().last()->palette()->name(), "Cave");
        QVERIFY(project.tileSets().last()->count() == 256 && !project.tileSets().last()->hiRes());
        enter(3, "New Tile Set", "Forest", {"Main", "512"}, true);
        QCOMPARE(project.tileSets().last()->palette(), shell.palette);
        QVERIFY(project.tileSets().last()->count() == 512 && project.tileSets().last()->hiRes());
        enter(3, "Create Animations", "Doors", {});
        QCOMPARE(project.blockSets().last()->tileSet(), shell.tileSet); // the active one
        enter(4, "New Map", "Level", {"Forest"});
        QCOMPARE(project.maps().last()->tileSet()->name(), "Forest");
        QCOMPARE(project.maps().last()->size(), QSize(40, 32));
        enter(5, "New", "Hero", {"Main", "4-bit, 16 colours"});
        QVERIFY(project.spriteBanks().last()->depth() == Quenmora::FourBit);
        QCOMPARE(project.spriteBanks().last()->palette(), shell.palette);
        enter(5, "New", "Villain", {"New palette of the same name", "8-bit, 256 colours"});
        QVERIFY(project.spriteBanks().last()->depth() == Quenmora::EightBit);
        QCOMPARE(project.spriteBanks().last()->palette()->name(), "Villain");
        enter(6, "New Image", "Title", {"640x256 16 colours", "Main"});
        QCOMPARE(project.images().last()->mode(), Quenmora::Layer2_640x256);
        QSignalSpy created(shell.bar.fileMenu(), &FileMenu::newProject);
        enter(0, "New", "Game", {});
        QCOMPARE(created, QList<QVariantList>({{"Game"}}));
        enter(0, "New", "", {});
        QVERIFY(dialogs().last()->isVisible()); // a name is needed
        QCOMPARE(dialogs().size(), 7);
    }
};

QUENMORA_TEST_MAIN(TestMenus)
#include "tst_menus.moc"
