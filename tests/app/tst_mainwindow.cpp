#include "app/menus/editmenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "app/menus/viewmenu.h"
#include "app/platform.h"
#include "app/startpage.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/tilepickergrid.h"
#include "support/windowscene.h"

class TestMainWindow : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(statePath("")).removeRecursively();
        openWindow();
    }

    void cleanup() { m_window.reset(); }

    void placesTheDocks()
    {
        const auto layout = [this] { // by the names that the stored one has
            QStringList places;
            for (DockWidget *dock : m_window->findChildren<DockWidget *>(Qt::FindDirectChildrenOnly)) {
                const int isSeen = !dock->isFloating() && !dock->isHidden();
                const int area = m_window->dockWidgetArea(dock);
                places.append(QString("%1 %2 %3").arg(dock->objectName()).arg(area).arg(isSeen));
            }
            places.sort();
            return places;
        };
        const QStringList usual{"MapSpritesWindow 1 1", "ProjectWindow 1 1",  "SpriteEditor 2 1", "TileEditor 2 1",
                                "TileListWindow 1 1",   "TilePickerTool 8 1", "paletteWindow 2 1"};
        QCOMPARE(layout(), usual);
        views().project->setFloating(true);
        views().tilePicker->close();
        m_window->addDockWidget(Qt::LeftDockWidgetArea, views().palette);
        emit m_window->menus()->viewMenu()->resetLayout();
        QCOMPARE(layout(), usual);
        QCOMPARE(m_window->tabifiedDockWidgets(views().palette).size(), 2);
        QCOMPARE(m_window->tabifiedDockWidgets(views().mapObjects), QList<QDockWidget *>{views().mapSprites});
    }

    void survivesDamagedState()
    {
        m_window.reset();
        // layouts of foreign bytes, and preferences that are cut
        QVERIFY(writeFile(
            statePath("state.json"),
            R"({"windowState": "AAAA/wAAAAD9", "windowGeometry": "AAAAAAAAAAA=", "tileZoom": -5, "recent": [1, null]})"));
        QVERIFY(writeFile(statePath("preferences.json"), "[1, "));
        m_window.emplace();
        QCOMPARE(m_window->size(), QSize(1024, 768));
        QCOMPARE(m_window->dockWidgetArea(views().palette), Qt::RightDockWidgetArea);
        QVERIFY(m_window->close());
    }

    void remembersTheWorkingFolderAndHowPeoplePaint()
    {
        const auto choice = [this] { return EditorInput::entry(*m_window->menus()->editMenu(), "Connect Strokes"); };
        const auto connects = [this] {
            tabs()->setScratchEditorVisible(true);
            QList<bool> found;
            for (PixelEditor *editor : std::initializer_list<PixelEditor *>{views().tileEditor, views().spriteEditor,
                                                                            tabs()->scratchEditor()})
                found += editor->canvas()->paintOptions().connect;
            return found;
        };
        QVERIFY(m_window->close());
        AppState state;
        QVERIFY(state.loadState());
        QCOMPARE(state.lastPath(), QDir::currentPath());
        QVERIFY(!QFile::exists(statePath("painting.json"))); // nothing was chosen
        QCOMPARE(connects(), (QList{true, true, true}));
        choice()->trigger();
        QCOMPARE(connects(), (QList{false, false, false}));
        m_window.reset();
        m_window.emplace();
        QVERIFY(!choice()->isChecked());
        QCOMPARE(connects(), (QList{false, false, false}));
    }

    void keepsStateBetweenRuns()
    {
        const QString file = sampleFile();
        controller()->openProject(file);
        views().tilePicker->setMagnification(3);
        views().project->close();
        m_window->addDockWidget(Qt::LeftDockWidgetArea, views().palette);
        m_window->menus()->fileMenu()->setOpenFolder(m_folder());
        m_window->resize(780, 700);
        m_window->menus()->viewMenu()->setChecked(ViewMenu::CheckableItem::StatusBar, false);
        project().setName("Changed");
        ProjectController::UnsavedAnswer answer = ProjectController::Cancel;
        controller()->setUnsavedAnswerCallback([&answer](const QString &) { return answer; });
        QVERIFY(!m_window->close());
        QVERIFY(m_window->isVisible() && tabs()->count() == 1);
        QVERIFY(!QFile::exists(statePath("state.json")));
        answer = ProjectController::Discard;
        QVERIFY(m_window->close());
        QVERIFY(QFile::exists(statePath("preferences.json")));
        m_window.emplace();
        QCOMPARE(views().tilePicker->magnification(), 3);
        QVERIFY(views().project->isHidden());
        QCOMPARE(m_window->dockWidgetArea(views().palette), Qt::LeftDockWidgetArea);
        QCOMPARE(m_window->menus()->fileMenu()->openFolder(), m_folder());
        QCOMPARE(m_window->menus()->fileMenu()->recentFiles(), QStringList{file});
        QCOMPARE(m_window->size(), QSize(780, 700));
    }

    void saysHowToGoOnWithoutDocuments()
    {
        const QString file = sampleFile();
        m_window->menus()->fileMenu()->addRecentFile(file);
        const auto *page = m_window->findChild<StartPage *>();
        QVERIFY(page->isVisible());
        QCOMPARE(page->size(), m_window->centralWidget()->size());
        const QAbstractButton *create = EditorInput::button(*page, "New project");
        QVERIFY(create->isVisible());
        EditorInput::button(*page, QDir::toNativeSeparators(file))->click();
        QVERIFY(controller()->project() && !page->isVisible());
        tabs()->closeAllTabs();
        QVERIFY(page->isVisible() && !EditorInput::button(*page, "New project")->isVisible());
        controller()->close();
        QVERIFY(EditorInput::button(*page, "New project")->isVisible());
    }

    void followsTheLifeOfAProject()
    {
        const ViewMenu *menu = m_window->menus()->viewMenu();
        verifyWithoutProject();
        controller()->openProject(sampleFile());
        QVERIFY(m_window->windowTitle().endsWith(" - Sample"));
        QVERIFY(views().project->isActive());
        QCOMPARE(tabs()->currentWidget(), tabs()->scratchEditor());
        QVERIFY(menu->isChecked(ViewMenu::CheckableItem::ScratchEditor));
        tabs()->closeTab(0);
        QVERIFY(!menu->isChecked(ViewMenu::CheckableItem::ScratchEditor));
        documents().setActiveMap(project().maps().first()->id());
        controller()->close();
        verifyWithoutProject();
    }

    void tellsInStatusBarAndDialog()
    {
        const auto told = [this] {
            return dialog()->windowTitle() + '|' + dialog()->text() + '|' + dialog()->detail();
        };
        controller()->openProject(m_folder("gone.quenmora")); // as a recent file that is gone
        QVERIFY(dialog()->isVisible());
        QCOMPARE(told(), "Warning!|Invalid project file|" + QDir::toNativeSeparators(m_folder("gone.quenmora")));
        controller()->newProject("Game");
        emit project().error("Told by the project");
        dialog()->accept(); // the next one in turn
        QCOMPARE(told(), "Warning!|Told by the project|");

        QCOMPARE(message(), m_window->windowTitle());
        project().createPalette(CreateAction::Blank, "Main");
        QCOMPARE(message(), "New palette added: Main");
        const QString file = m_folder("game.quenmora");
        controller()->setFileNameCallback([file] { return file; });
        controller()->save();
        QCOMPARE(message(), "Saved Game to " + QDir::toNativeSeparators(file));
        m_window->statusBar()->clearMessage();
        QCOMPARE(message(), "Game [" + QDir::toNativeSeparators(file) + "]");
    }

    void opensADroppedProject()
    {
        const QUrl file = QUrl::fromLocalFile(sampleFile());
        const auto drop = [this](const QList<QUrl> &urls) {
            QMimeData data;
            data.setUrls(urls);
            const bool isTaken = EditorInput::dropFromElsewhere(*m_window, {50, 50}, data);
            QCoreApplication::processEvents();
            return isTaken;
        };
        QVERIFY(!drop({QUrl::fromLocalFile(m_folder("picture.png"))}));
        QVERIFY(!drop({QUrl("https://example.com/sample.quenmora")}));
        QVERIFY(!drop({file, file}));
        controller()->newProject("Game");
        project().createPalette(CreateAction::Blank, "Main");
        for (const auto answer : {ProjectController::Cancel, ProjectController::Discard}) {
            controller()->setUnsavedAnswerCallback([answer](const QString &) { return answer; });
            QVERIFY(drop({file}));
            QCOMPARE(project().name(), answer == ProjectController::Cancel ? "Game" : "Sample");
        }
    }

    void doesWhatMenusAsk()
    {
        m_window->nextTile(); // without a tile set
        controller()->newProject("Game");
        const QPointer<TileSet> tiles = project().createTileSet("Tiles", {}, 3);
        const QPointer<SpriteBank> bank = project().createSpriteBank(Quenmora::FourBit, "Hero", {});
        const QPointer<Palette> palette = project().createPalette(CreateAction::DefaultNext, "New");
        documents().setActiveTileSet(tiles->id());
        documents().setActiveSpriteEditor(bank->id());
        for (const auto &[step, tile] : {std::pair(&MainWindow::nextTile, 1),
                                         {&MainWindow::nextTile, 2},
                                         {&MainWindow::nextTile, 2},
                                         {&MainWindow::previousTile, 1},
                                         {&MainWindow::previousTile, 0},
                                         {&MainWindow::previousTile, 0}}) {
            ((*m_window).*step)();
            QCOMPARE(views().tileEditor->tileIndex(), tile);
            QCOMPARE(views().tilePicker->grid()->selectedIndex(), tile);
        }
        QSignalSpy changed(tiles, &TileSet::tileChanged);
        const MenuBar *menus = m_window->menus();
        emit menus->tileMenu()->swapPalette(QUuid::createUuid());
        QVERIFY(tiles->palette() != palette && changed.isEmpty());
        emit menus->tileMenu()->swapPalette(palette->id());
        emit menus->spriteMenu()->swapPalette(palette->id());
        QCOMPARE(tiles->palette(), palette);
        QCOMPARE(changed.size(), 1); // which repaints what shows tiles
        QCOMPARE(bank->palette(), palette);
        const QList<QRgb> before = palette->colourTable();
        m_window->projectActions()->importPalette(palette->id(), m_folder("dim.pal", QByteArray(512, '\1')));
        QVERIFY(palette->colourTable() != before);
        documents().undoGroup()->undo();
        QCOMPARE(palette->colourTable(), before);
    }

    void asksBeforeAnAssetIsDeleted_data()
    {
        QTest::addColumn<ProjectTree::ProjectNode>("node");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("consequences"); // or the message with its title, since it stays in any case
        const auto add = [](const char *name, ProjectTree::ProjectNode node, const char *consequences) {
            QTest::newRow(name) << node << QString(name) << QString(consequences);
        };
        add("Level", ProjectTree::MapNode, "Lost with it: 2 placed sprites, 1 placed animation.\n");
        add("Hero", ProjectTree::SpriteBankNode,
            "Lost with it: 1 animation. No longer shown: 2 placed sprites on 1 map.\n");
        add("Spare", ProjectTree::TileSetNode, "Left without tiles: Barrels, Wells %1.\n");
        add("Wells %1", ProjectTree::MapObjectsNode, "Lost with it: 2 animations.\n");
        add("Title", ProjectTree::ImageNode, "");
        add("Unused", ProjectTree::PaletteNode, "");
        add("Tiles", ProjectTree::TileSetNode,
            "Tile Set In Use|You may not delete this Tile Set; it is used by one or more maps");
        add("Blocks", ProjectTree::MapObjectsNode,
            "Objects in use|You may not delete these objects; they are in use by one or more maps");
        add("Main", ProjectTree::PaletteNode,
            "Palette In Use|You may not delete this palette; it is used by one or more sprites, tiles or images");
    }

    void asksBeforeAnAssetIsDeleted()
    {
        QFETCH(const ProjectTree::ProjectNode, node);
        QFETCH(const QString, name);
        QFETCH(const QString, consequences);
        controller()->openProject(sampleFile());
        const QUuid spare = project().createTileSet("Spare", project().palettes().first()->id(), 1)->id();
        const QPointer<MapObjects> wells = project().createBlockList("Wells %1", spare);
        wells->createBoundTileAnimation("Deep");
        wells->createBoundTileAnimation("Dry");
        project().createBlockList("Barrels", spare);
        project().createPalette(CreateAction::Blank, "Unused");
        project().images().first()->setName("Title");

        const auto found = views().project->tree()->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        const QUuid id = found.first()->data(0, Qt::UserRole).toUuid();
        const QSignalSpy deleted(m_window->projectActions(), &ProjectActions::itemDeleted);
        for (const bool answer : {false, true}) {
            QStringList asked;
            m_window->setDeletionCallback([&](const DeletionQuestion &question) {
                asked += {question.text, question.consequences};
                return answer;
            });
            if (node == ProjectTree::PaletteNode)
                emit views().palette->deleteRequested(id);
            else
                emit views().project->deleteItemTriggered(node, id);
            const bool mayGo = !consequences.contains('|');
            const QString text = QString::fromUtf8("Delete “%2” (%1)?").arg(ProjectTree::nodeName(node), name);
            QCOMPARE(asked, mayGo ? QStringList({text, consequences + "There is no undo for this."}) : QStringList());
            QCOMPARE(deleted.size(), answer && mayGo ? 1 : 0);
            const auto *told = m_window->findChild<MessageDialog *>();
            QCOMPARE(told ? told->windowTitle() + '|' + told->text() : QString(), mayGo ? "" : consequences);
        }
    }

    void unusedScratchImageNeedsNoPalette()
    {
        controller()->newProject("Game");
        const QPointer<Palette> first = project().createPalette(CreateAction::Blank, "First");
        bool answer = false;
        m_window->setDeletionCallback([&answer](const DeletionQuestion &) { return answer; });
        const auto remove = [this](const QPointer<Palette> &palette) {
            emit views().palette->deleteRequested(palette->id());
        };
        remove(first);
        QCOMPARE(project().scratchPalette(), first);
        answer = true;
        const QPointer<Palette> second = project().createPalette(CreateAction::Blank, "Second");
        remove(first);
        QVERIFY(!first);
        QCOMPARE(project().scratchPalette(), second);
        QImage drawn = project().scratchImage();
        drawn.scanLine(100)[17] = 1;
        project().setScratchImage(drawn);
        remove(second);
        QVERIFY(second);
        project().setScratchImage(QImage(drawn.size(), QImage::Format_Indexed8)); // pixels of any value
        drawn.fill(0);
        project().setScratchImage(drawn);
        remove(second);
        QVERIFY(!second && !project().scratchPalette());
    }

    void pageInFrontHasTheKeyboard()
    {
        activateWindow();
        ProjectTree *tree = views().project->tree();
        const auto pageHasIt = [&] {
            return tabs()->currentWidget() && tabs()->currentWidget()->isAncestorOf(QApplication::focusWidget())
                && QApplication::focusWidget() == tabs()->currentWidget()->focusProxy();
        };
        tree->setFocus();
        controller()->openProject(sampleFile());
        QVERIFY(pageHasIt());
        const QUuid level = project().maps().first()->id();
        for (int time = 0; time < 2; ++time) { // opened, and in front already
            tree->setFocus();
            emit tree->itemDoubleClicked(ProjectTree::MapNode, level);
            QVERIFY(pageHasIt());
        }
        const int map = tabs()->currentIndex();
        const QPoint scratchTab = tabs()->tabBar()->tabRect(0).center();
        for (int time = 0; time < 2; ++time) { // another tab, and the one in front
            tree->setFocus();
            QTest::mouseClick(tabs()->tabBar(), Qt::LeftButton, {}, scratchTab);
            QVERIFY(tabs()->currentIndex() == 0 && pageHasIt());
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        QVERIFY(tabs()->currentIndex() == map && pageHasIt());
        tree->setFocus();
        emit tabs()->tabCloseRequested(0);
        QVERIFY(tabs()->count() == 1 && pageHasIt());
        tree->setFocus();
        m_window->menus()->viewMenu()->setChecked(ViewMenu::CheckableItem::ScratchEditor, true);
        QVERIFY(tabs()->count() == 2 && pageHasIt());

        tabs()->tabBar()->setFocus();
        QTest::keyClick(tabs()->tabBar(), Qt::Key_Left);
        QVERIFY(tabs()->currentIndex() == 0 && tabs()->tabBar()->hasFocus()); // going through the tabs
        tree->setFocus();
        m_window->projectActions()->deleteItem(ProjectTree::MapNode, level);
        QVERIFY(tabs()->count() == 1 && tree->hasFocus()); // going through the tree
        emit tree->itemDoubleClicked(ProjectTree::TileSetNode, project().tileSets().first()->id());
        QVERIFY(views().tileEditor->isAncestorOf(QApplication::focusWidget()));
    }

    void clickedDockLeavesTheKeyboardToTheMap()
    {
        activateWindow();
        controller()->openProject(sampleFile());
        documents().setActiveMap(project().maps().first()->id());
        const QWidget *map = tabs()->currentWidget()->focusProxy();
        views().mapSprites->raise();
        QCoreApplication::processEvents();
        QWidget *places[] = {views().tilePicker->grid(),
                             views().mapSprites->findChild<QListView *>("sprites")->viewport(),
                             views().mapSprites->findChild<QComboBox *>()};
        for (QWidget *place : places) {
            views().project->tree()->setFocus();
            QTest::mouseClick(place, Qt::LeftButton, {}, {5, 5});
            QCOMPARE(QApplication::focusWidget(), map);
            if (QWidget *popup = QApplication::activePopupWidget())
                popup->close();
        }
        views().tilePicker->grid()->setFocus(Qt::TabFocusReason);
        QTest::keyClick(views().tilePicker->grid(), Qt::Key_Right);
        QVERIFY(views().tilePicker->grid()->hasFocus());
        auto *typedIn = new QLineEdit(views().tilePicker->widget());
        typedIn->show();
        typedIn->setFocus();
        QTest::mouseClick(typedIn, Qt::LeftButton);
        QVERIFY(typedIn->hasFocus());
        tabs()->setScratchEditorVisible(true);
        QTest::mouseClick(views().tilePicker->grid(), Qt::LeftButton, {}, {5, 5});
        QVERIFY(views().tilePicker->grid()->hasFocus()); // no map in front
    }

    void tabsTellWhatTheyAreOf()
    {
        controller()->openProject(sampleFile());
        openAll();
        project().tileSets().first()->setName("Rock & Roll"); // no mnemonic
        QCoreApplication::processEvents();
        m_window->resize(1800, 800);
        const auto docks = m_window->findChildren<QDockWidget *>();
        m_window->resizeDocks(docks, QList<int>(docks.size(), 600), Qt::Horizontal); // with room for wide letters
        QCoreApplication::processEvents();
        int marked = 0;
        for (const QTabBar *bar : m_window->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
            for (int tab = 0; tab < bar->count(); ++tab) {
                const int text = bar->fontMetrics().horizontalAdvance(bar->tabText(tab));
                QVERIFY2(bar->tabRect(tab).width() >= text + 16, qPrintable(bar->tabText(tab)));
                marked += bar->tabIcon(tab).isNull() ? 0 : 1;
            }
        }
        QCOMPARE(views().tileEditor->toggleViewAction()->text(), "Rock && Roll");
        QCOMPARE(marked, 3); // palette, tile set and sprites, whose tabs are named after them
        QList<QImage> icons; // an image, sprites, map objects and a map may have one name
        for (int tab = 1; tab < 5; ++tab) {
            icons.append(tabs()->tabIcon(tab).pixmap(16).toImage());
            QVERIFY(!icons.last().isNull() && icons.count(icons.last()) == 1);
        }
    }

private:
    [[nodiscard]] static QString statePath(const char *file)
    {
        return Platform::homeFolder().filePath(".config/quenmora/" + QLatin1String(file));
    }
    [[nodiscard]] QString sampleFile()
    {
        writeProject(m_folder("sample.quenmora"), "Sample");
        return m_folder("sample.quenmora");
    }

    void verifyWithoutProject()
    {
        QCOMPARE(m_window->windowTitle(), QCoreApplication::applicationName());
        QCOMPARE(message(), m_window->windowTitle());
        QVERIFY(tabs()->count() == 0 && tabs()->isEnabled());
        QVERIFY(!views().mapToolBar->isEnabled());
        QVERIFY(!m_window->menus()->viewMenu()->isChecked(ViewMenu::CheckableItem::ScratchEditor));
        for (const DockWidget *dock : m_window->findChildren<DockWidget *>())
            QVERIFY2(!dock->isActive(), qPrintable(dock->objectName()));
    }
};

QUENMORA_TEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
