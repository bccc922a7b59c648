#include "app/guide.h"
#include "app/installedfiles.h"
#include "app/menus/helpmenu.h"
#include "app/recentpictures.h"
#include "app/recentpreview.h"
#include "app/startpage.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "exportprogram.h" // made by the build: where the program and the examples are
#include "nextdata/recipe.h"
#include "support/windowscene.h"
#include "ui/commands.h"
#include "ui/emptyhint.h"

#include <algorithm>

/// The first minutes with the program: the sample, the guide, the pictures of projects, what to do in empty editors.
class TestStart : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }
    void cleanup() { m_window.reset(); }

    void findsWhatComesAlong()
    {
        // the folder of the program, and what it finds: the sample, the page of the guide about maps, and one about
        // something else, which it may not have
        const std::pair<QString, QStringList> cases[]{
            {"p/bin",
             {"p/share/quenmora/examples/sample.quenmora", "p/share/doc/quenmora/guide/maps.html",
              "p/share/doc/quenmora/guide/index.html"}},
            {"zip",
             {"zip/examples/sample.quenmora", "zip/documentation/guide/maps.md", "zip/documentation/guide/README.md"}},
            {"build/src/app", {"source/examples/sample.quenmora", "source/docs/guide/maps.md", ""}},
            {"bin", {"", "", ""}}};
        for (const auto &[program, files] : cases) {
            for (const QString &file : files + QStringList{program + "/quenmora"}) {
                if (!file.isEmpty())
                    write(m_folder(file), "x");
            }
        }
        write(m_folder("build/CMakeCache.txt"),
              "A:B=c\nCMAKE_HOME_DIRECTORY:INTERNAL=" + m_folder("source").toUtf8() + "\n");
        for (const auto &[program, files] : cases) {
            const QString folder = m_folder(program);
            const QStringList found{InstalledFiles::sampleProject(folder), InstalledFiles::guidePage("maps", folder),
                                    InstalledFiles::guidePage("elsewhere", folder)};
            QCOMPARE(valuesOf(found, [this](const QString &file) { return file.mid(m_folder().size() + 1); }), files);
        }
    }

    void opensTheSampleAsACopyOfOnesOwn()
    {
        const QByteArray sample = readFile(EXAMPLES_FOLDER "/sample.quenmora");
        m_window->menus()->helpMenu()->sampleAction()->trigger();
        QVERIFY(controller()->project() && controller()->filePath().isEmpty());
        QVERIFY(!project().maps().isEmpty());
        QVERIFY(!controller()->isModified()); // nobody asks about what was only looked at
        QVERIFY(m_window->menus()->fileMenu()->recentFiles().isEmpty());

        project().maps().first()->setName("Mine");
        QVERIFY(controller()->isModified());
        const QString file = m_folder("mine.quenmora");
        controller()->setFileNameCallback([file] { return file; });
        controller()->save();
        QVERIFY(!controller()->isModified());
        QCOMPARE(controller()->filePath(), file);
        QCOMPARE(m_window->menus()->fileMenu()->recentFiles(), QStringList{file});
        QCOMPARE(readFile(EXAMPLES_FOLDER "/sample.quenmora"), sample);
        QCOMPARE(readFile(NextData::Recipe::pathFor(file)), readFile(EXAMPLES_FOLDER "/sample.quenmora-export.json"));
    }

    void opensTheGuideAtWhatIsInFront()
    {
        Guide guide(views());
        QString opened;
        guide.setOpener([&opened](const QUrl &url) {
            opened = QFileInfo(url.toLocalFile()).completeBaseName();
            return true;
        });
        const auto pageFor = [&] {
            guide.open();
            return opened;
        };
        activateWindow();
        QCOMPARE(pageFor(), "README");
        controller()->openSample();
        documents().setActiveMap(project().maps().first()->id());
        tabs()->currentWidget()->setFocus();
        QCOMPARE(pageFor(), "maps");
        documents().setActiveImageEditor(project().images().first()->id());
        tabs()->currentWidget()->setFocus();
        QCOMPARE(pageFor(), "images");
        documents().openSprites(project().spriteBanks().first()->id());
        views().spriteEditor->content()->setFocus();
        views().spriteEditor->findChild<QToolButton *>()->setFocus();
        QCOMPARE(pageFor(), "sprites");

        guide.setOpener([](const QUrl &) { return false; });
        QSignalSpy failed(&guide, &Guide::failed);
        guide.open();
        QVERIFY(failed.size() == 1 && failed[0][1].toString().contains("sprites.md"));
    }

    /// Also from fields that take most keys, but not from one that takes every key.
    void opensTheGuideInModalDialogs()
    {
        // the command that opens a dialog, the kind of what has the keyboard in it, the key, and the page
        const std::tuple<const char *, const char *, Qt::Key, const char *> cases[] = {
            {"palette.new", "QLineEdit", Qt::Key_F1, "palettes"},
            {"map.new", "QSpinBox", Qt::Key_F1, "maps"},
            {"image.new", "QComboBox", Qt::Key_F1, "images"},
            {"help.keyboardShortcuts", "QAbstractItemView", Qt::Key_F1, "keys"},
            {"file.preferences", "QPushButton", Qt::Key_F1, "window"},
            {"help.keyboardShortcuts", "QKeySequenceEdit", Qt::Key_F1, ""},
            {"palette.new", "QLineEdit", Qt::Key_F2, ""},
        };
        for (const auto &[command, field, key, page] : cases) {
            controller()->openSample();
            Guide guide(views());
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
            QCOMPARE(opened, page);
            dialog->close();
            QCoreApplication::processEvents();
        }
    }

    void keepsPicturesOfProjects()
    {
        const QByteArray sample = readFile(EXAMPLES_FOLDER "/sample.quenmora");
        const QString good = m_folder("good.quenmora", sample);
        const auto pictureBy = [&](const QString &program) {
            RecentPictures pictures;
            pictures.setFolder(m_folder("cache"));
            pictures.setProgram(program);
            QSignalSpy found(&pictures, &RecentPictures::found);
            pictures.want({m_folder("gone.quenmora"), m_folder("damaged.quenmora", sample.left(5000)), good});
            found.wait(program.isEmpty() ? 1000 : 60'000);
            return pictures.picture(good);
        };
        const QImage made = pictureBy(EXPORT_PROGRAM);
        QVERIFY(!made.isNull() && std::max(made.width(), made.height()) <= RecentPictures::Extent);
        QCOMPARE(QDir(m_folder("cache")).entryList(QDir::Files).size(), 1);
        QCOMPARE(pictureBy({}), made); // it is kept
        m_folder("good.quenmora", sample + "x");
        QVERIFY(pictureBy({}).isNull()); // but not for a file that has changed
    }

    void showsPicturesOnTheStartPage()
    {
        const QString file = m_folder("mine.quenmora", readFile(EXAMPLES_FOLDER "/sample.quenmora"));
        auto *page = m_window->findChild<StartPage *>();
        page->pictures()->setFolder(m_folder("cache"));
        page->pictures()->setProgram(EXPORT_PROGRAM);
        m_window->menus()->fileMenu()->addRecentFile(file);
        const QAbstractButton *card = EditorInput::button(*page, QDir::toNativeSeparators(file));
        QVERIFY(card && card->accessibleName() == "mine.quenmora");
        const QImage before = card->icon().pixmap(card->iconSize()).toImage();
        QTRY_VERIFY_WITH_TIMEOUT(card->icon().pixmap(card->iconSize()).toImage() != before, 60'000);

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
        controller()->newProject("Empty");
        ProjectActions *actions = m_window->projectActions();
        actions->createTileSet("Tiles", {}, 4, false);
        actions->createMap("Map", project().tileSets().first()->id(), {8, 8});
        auto *view = page<MapEditor::View>();
        QVERIFY(view);
        const auto hintOver = [](const QWidget *widget) {
            return widget->findChild<EmptyHint *>({}, Qt::FindDirectChildrenOnly);
        };
        const EmptyHint *onMap = hintOver(view->grid());
        const EmptyHint *onTiles = views().tileEditor->findChild<EmptyHint *>();
        QVERIFY(onMap && onTiles);
        QTRY_VERIFY(onMap->isVisibleTo(view->grid()) && !onMap->text().isEmpty());
        QTRY_VERIFY(!onTiles->text().isEmpty());
        QVERIFY(!view->grid()->childAt(onMap->geometry().center())); // the mouse goes through
        QVERIFY(view->grid()->rect().contains(onMap->geometry()));

        project().maps().first()->setTile({7, 7}, {.index = 1, .used = true});
        view->grid()->update();
        QTRY_VERIFY(!onMap->isVisibleTo(view->grid()));
        QVERIFY(!hintOver(MapEditor::View(project().maps().first()).grid())); // a view by itself stays bare
    }

private:
    static void write(const QString &path, const QByteArray &bytes)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()) && writeFile(path, bytes));
    }
};

QUENMORA_TEST_MAIN(TestStart)

#include "tst_start.moc"
