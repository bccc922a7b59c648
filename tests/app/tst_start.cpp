#include "app/guide.h"
#include "app/installedfiles.h"
#include "app/mainwindow.h"
#include "app/menus/filemenu.h"
#include "app/menus/helpmenu.h"
#include "app/recentpictures.h"
#include "app/recentpreview.h"
#include "app/startpage.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "exportprogram.h" // made by the build: where the program and the examples are
#include "model/image.h"
#include "model/map.h"
#include "model/spritebank.h"
#include "model/tilemap.h"
#include "model/tileset.h"
#include "nextdata/recipe.h"
#include "support/modeltools.h"
#include "support/testmain.h"
#include "ui/commands.h"
#include "ui/emptyhint.h"
#include "ui/messagedialog.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QUrl>

#include <algorithm>
#include <optional>

/// The first minutes with the program: the sample, the guide, the pictures of projects, what to do in empty editors.
class TestStart : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Update::UpdateChecker::setFeedAddress({}); }
    void init()
    {
        m_folder = std::make_unique<TemporaryFolder>();
        m_window.emplace();
    }
    void cleanup() { m_window.reset(); }

    void findsWhatComesAlong_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("sample");
        QTest::addColumn<QString>("maps"); // the page of the guide about maps
        QTest::addColumn<QString>("other"); // one about something else, which it may not have
        QTest::addRow("installed") << QStringList{"p/share/quenmora/examples/sample.quenmora",
                                                  "p/share/doc/quenmora/guide/maps.html",
                                                  "p/share/doc/quenmora/guide/index.html"}
                                   << "p/bin"
                                   << "p/share/quenmora/examples/sample.quenmora"
                                   << "p/share/doc/quenmora/guide/maps.html"
                                   << "p/share/doc/quenmora/guide/index.html";
        QTest::addRow("unpacked") << QStringList{"zip/examples/sample.quenmora", "zip/documentation/guide/maps.md",
                                                 "zip/documentation/guide/README.md"}
                                  << "zip"
                                  << "zip/examples/sample.quenmora"
                                  << "zip/documentation/guide/maps.md"
                                  << "zip/documentation/guide/README.md";
        QTest::addRow("built") << QStringList{"source/examples/sample.quenmora", "source/docs/guide/maps.md",
                                              "build/src/app/quenmora"}
                               << "build/src/app"
                               << "source/examples/sample.quenmora"
                               << "source/docs/guide/maps.md"
                               << "";
        QTest::addRow("alone") << QStringList{"bin/quenmora"} << "bin"
                               << ""
                               << ""
                               << "";
    }
    void findsWhatComesAlong()
    {
        QFETCH(const QStringList, files);
        QFETCH(const QString, program);
        const auto at = [this](const QString &file) { return file.isEmpty() ? QString() : (*m_folder)(file); };
        for (const QString &file : files)
            write(at(file), "x");
        write(at("build/CMakeCache.txt"), "A:B=c\nCMAKE_HOME_DIRECTORY:INTERNAL=" + at("source").toUtf8() + "\n");
        QTEST(InstalledFiles::sampleProject(at(program)).mid((*m_folder)().size() + 1), "sample");
        QTEST(InstalledFiles::guidePage("maps", at(program)).mid((*m_folder)().size() + 1), "maps");
        QTEST(InstalledFiles::guidePage("elsewhere", at(program)).mid((*m_folder)().size() + 1), "other");
    }

    void opensTheSampleAsACopyOfOnesOwn()
    {
        const QByteArray sample = readFile(EXAMPLES_FOLDER "/sample.quenmora");
        ProjectController *controller = m_window->projectController();
        m_window->menus()->helpMenu()->sampleAction()->trigger();
        QVERIFY(controller->project() && controller->filePath().isEmpty());
        QVERIFY(!controller->project()->maps().isEmpty());
        QVERIFY(!controller->isModified()); // nobody asks about what was only looked at
        QVERIFY(m_window->menus()->fileMenu()->recentFiles().isEmpty());

        controller->project()->maps().first()->setName("Mine");
        QVERIFY(controller->isModified());
        const QString file = (*m_folder)("mine.quenmora");
        controller->setFileNameCallback([file] { return file; });
        controller->save();
        QVERIFY(!controller->isModified());
        QCOMPARE(controller->filePath(), file);
        QCOMPARE(m_window->menus()->fileMenu()->recentFiles(), QStringList{file});
        QCOMPARE(readFile(EXAMPLES_FOLDER "/sample.quenmora"), sample);
        QCOMPARE(readFile(NextData::Recipe::pathFor(file)), readFile(EXAMPLES_FOLDER "/sample.quenmora-export.json"));
    }

    void opensTheGuideAtWhatIsInFront()
    {
        Guide guide(m_window->views());
        const DocumentViews &views = m_window->views();
        QString opened;
        guide.setOpener([&opened](const QUrl &url) {
            opened = QFileInfo(url.toLocalFile()).completeBaseName();
            return true;
        });
        const auto page = [&] {
            guide.open();
            return opened;
        };
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&*m_window));
        QCOMPARE(page(), "README");
        m_window->projectController()->openSample();
        const Project *project = m_window->projectController()->project();
        DocumentController *documents = m_window->documentController();
        documents->setActiveMap(project->maps().first()->id());
        views.tabs->currentWidget()->setFocus();
        QCOMPARE(page(), "maps");
        documents->setActiveImageEditor(project->images().first()->id());
        views.tabs->currentWidget()->setFocus();
        QCOMPARE(page(), "images");
        documents->openSprites(project->spriteBanks().first()->id());
        views.spriteEditor->content()->setFocus();
        views.spriteEditor->findChild<QToolButton *>()->setFocus();
        QCOMPARE(page(), "sprites");

        guide.setOpener([](const QUrl &) { return false; });
        QSignalSpy failed(&guide, &Guide::failed);
        guide.open();
        QVERIFY(failed.size() == 1 && failed[0][1].toString().contains("sprites.md"));
    }

    /// Also from fields that take most keys, but not from one that takes every key.
    void opensTheGuideInModalDialogs_data()
    {
        QTest::addColumn<QString>("command"); // that opens the dialog
        QTest::addColumn<QByteArray>("field"); // the kind of what has the keyboard in it
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("page");
        QTest::addRow("a name") << "palette.new" << QByteArray("QLineEdit") << int(Qt::Key_F1) << "palettes";
        QTest::addRow("a number") << "map.new" << QByteArray("QSpinBox") << int(Qt::Key_F1) << "maps";
        QTest::addRow("a list") << "image.new" << QByteArray("QComboBox") << int(Qt::Key_F1) << "images";
        QTest::addRow("a table") << "help.keyboardShortcuts" << QByteArray("QAbstractItemView") << int(Qt::Key_F1)
                                 << "keys";
        QTest::addRow("a button") << "file.preferences" << QByteArray("QPushButton") << int(Qt::Key_F1) << "window";
        QTest::addRow("a key") << "help.keyboardShortcuts" << QByteArray("QKeySequenceEdit") << int(Qt::Key_F1) << "";
        QTest::addRow("another key") << "palette.new" << QByteArray("QLineEdit") << int(Qt::Key_F2) << "";
    }
    void opensTheGuideInModalDialogs()
    {
        QFETCH(const QString, command);
        QFETCH(const QByteArray, field);
        QFETCH(const int, key);
        m_window->projectController()->openSample();
        Guide guide(m_window->views());
        QString opened;
        guide.setOpener([&opened](const QUrl &url) {
            opened = QFileInfo(url.toLocalFile()).completeBaseName();
            return true;
        });
        QAction help;
        help.setShortcut(Qt::Key_F1);
        guide.serve(&help);
        Commands::instance()->actionsOf(command).constFirst()->trigger();
        QWidget *dialog = QApplication::activeModalWidget();
        QVERIFY(dialog);
        const QList<QWidget *> inside = dialog->findChildren<QWidget *>();
        const auto found = std::ranges::find_if(
            inside, [&field](const QWidget *each) { return each->inherits(field) && each->isVisible(); });
        QVERIFY(found != inside.end());
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        (*found)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        QTEST(opened, "page");
        dialog->close();
    }

    void keepsPicturesOfProjects()
    {
        const QString good = (*m_folder)("good.quenmora");
        const QString damaged = (*m_folder)("damaged.quenmora");
        QVERIFY(QFile::copy(EXAMPLES_FOLDER "/sample.quenmora", good));
        write(damaged, readFile(good).left(5000));
        const auto pictureOf = [this](const QString &file, const QString &program) {
            RecentPictures pictures;
            pictures.setFolder((*m_folder)("cache"));
            pictures.setProgram(program);
            QSignalSpy found(&pictures, &RecentPictures::found);
            pictures.want({(*m_folder)("gone.quenmora"), (*m_folder)("damaged.quenmora"), file});
            found.wait(program.isEmpty() ? 1000 : 60'000);
            return pictures.picture(file);
        };
        const QImage made = pictureOf(good, EXPORT_PROGRAM);
        QVERIFY(!made.isNull() && std::max(made.width(), made.height()) <= RecentPictures::Extent);
        QCOMPARE(QDir((*m_folder)("cache")).entryList(QDir::Files).size(), 1);
        QCOMPARE(pictureOf(good, {}), made); // it is kept
        QFile file(good);
        QVERIFY(file.open(QIODevice::Append) && file.write("x") == 1);
        file.close();
        QVERIFY(pictureOf(good, {}).isNull()); // but not for a file that has changed
    }

    void showsPicturesOnTheStartPage()
    {
        const QString file = (*m_folder)("mine.quenmora");
        QVERIFY(QFile::copy(EXAMPLES_FOLDER "/sample.quenmora", file));
        auto *page = m_window->findChild<StartPage *>();
        page->pictures()->setFolder((*m_folder)("cache"));
        page->pictures()->setProgram(EXPORT_PROGRAM);
        m_window->menus()->fileMenu()->addRecentFile(file);
        const auto cards = page->findChildren<QToolButton *>();
        const auto card = std::find_if(cards.begin(), cards.end(), [](const QToolButton *button) {
            return button->accessibleName() == "mine.quenmora";
        });
        QVERIFY(card != cards.end());
        const QImage before = (*card)->icon().pixmap((*card)->iconSize()).toImage();
        QTRY_VERIFY_WITH_TIMEOUT((*card)->icon().pixmap((*card)->iconSize()).toImage() != before, 60'000);

        QMenu *menu = m_window->menus()->fileMenu()->recentMenu();
        const auto *preview = menu->findChild<RecentPreview *>();
        menu->popup({});
        QHelpEvent pointed(QEvent::ToolTip, menu->actionGeometry(menu->actions().constFirst()).center(), {});
        QApplication::sendEvent(menu, &pointed);
        QVERIFY(preview->isVisible()
                && preview->findChildren<QLabel *>().constLast()->text().endsWith("mine.quenmora"));
        menu->hide();
        QVERIFY(!preview->isVisible());
    }

    void saysTheNextStepInEmptyEditors()
    {
        ProjectController *controller = m_window->projectController();
        controller->newProject("Empty");
        Project *project = controller->project();
        ProjectActions *actions = m_window->projectActions();
        actions->createTileSet("Tiles", {}, 4, false);
        QSize size(8, 8);
        actions->createMap("Map", project->tileSets().first()->id(), size);
        auto *view = qobject_cast<MapEditor::View *>(m_window->views().tabs->currentWidget());
        QVERIFY(view);
        const auto hintOver = [](const QWidget *widget) {
            return widget->findChild<EmptyHint *>({}, Qt::FindDirectChildrenOnly);
        };
        const EmptyHint *onMap = hintOver(view->grid());
        const EmptyHint *onTiles = m_window->views().tileEditor->findChild<EmptyHint *>();
        QVERIFY(onMap && onTiles);
        QTRY_VERIFY(onMap->isVisibleTo(view->grid()) && !onMap->text().isEmpty());
        QTRY_VERIFY(!onTiles->text().isEmpty());
        QVERIFY(!view->grid()->childAt(onMap->geometry().center())); // the mouse goes through
        QVERIFY(view->grid()->rect().contains(onMap->geometry()));

        project->maps().first()->setTile({7, 7}, {.index = 1, .used = true});
        view->grid()->update();
        QTRY_VERIFY(!onMap->isVisibleTo(view->grid()));
        QVERIFY(!hintOver(MapEditor::View(project->maps().first()).grid())); // a view by itself stays bare
    }

private:
    static void write(const QString &path, const QByteArray &bytes)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()) && writeFile(path, bytes));
    }
    std::unique_ptr<TemporaryFolder> m_folder;
    std::optional<MainWindow> m_window;
};

QUENMORA_TEST_MAIN(TestStart)

#include "tst_start.moc"
