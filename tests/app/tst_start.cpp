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

    void findsWhatComesAlong_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("sample");
        QTest::addColumn<QString>("maps"); // the page of the guide about maps
        QTest::addColumn<QString>("other"); // one about something else, which it may not have
        const auto row = [](const char *name, const QString &program, const QStringList &files, const QString &sample,
                            const QString &maps, const QString &other) {
            QTest::newRow(name) << files << program << sample << maps << other;
        };
        const QString share = "p/share/quenmora/examples/sample.quenmora";
        const QString pages = "p/share/doc/quenmora/guide/";
        row("installed", "p/bin", {share, pages + "maps.html", pages + "index.html"}, share, pages + "maps.html",
            pages + "index.html");
        const QStringList unpacked{"zip/examples/sample.quenmora", "zip/documentation/guide/maps.md",
                                   "zip/documentation/guide/README.md"};
        row("unpacked", "zip", unpacked, unpacked[0], unpacked[1], unpacked[2]);
        const QStringList built{"source/examples/sample.quenmora", "source/docs/guide/maps.md", "build/src/app/x"};
        row("built", "build/src/app", built, built[0], built[1], "");
        row("alone", "bin", {"bin/quenmora"}, "", "", "");
    }
    void findsWhatComesAlong()
    {
        QFETCH(const QStringList, files);
        QFETCH(const QString, program);
        const auto at = [this](const QString &file) { return file.isEmpty() ? QString() : m_folder(file); };
        for (const QString &file : files)
            write(at(file), "x");
        write(at("build/CMakeCache.txt"), "A:B=c\nCMAKE_HOME_DIRECTORY:INTERNAL=" + at("source").toUtf8() + "\n");
        QTEST(InstalledFiles::sampleProject(at(program)).mid(m_folder().size() + 1), "sample");
        QTEST(InstalledFiles::guidePage("maps", at(program)).mid(m_folder().size() + 1), "maps");
        QTEST(InstalledFiles::guidePage("elsewhere", at(program)).mid(m_folder().size() + 1), "other");
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
        const QString good = m_folder("good.quenmora");
        const QString damaged = m_folder("damaged.quenmora");
        QVERIFY(QFile::copy(EXAMPLES_FOLDER "/sample.quenmora", good));
        write(damaged, readFile(good).left(5000));
        const auto pictureOf = [this](const QString &file, const QString &program) {
            RecentPictures pictures;
            pictures.setFolder(m_folder("cache"));
            pictures.setProgram(program);
            QSignalSpy found(&pictures, &RecentPictures::found);
            pictures.want({m_folder("gone.quenmora"), m_folder("damaged.quenmora"), file});
            found.wait(program.isEmpty() ? 1000 : 60'000);
            return pictures.picture(file);
        };
        const QImage made = pictureOf(good, EXPORT_PROGRAM);
        QVERIFY(!made.isNull() && std::max(made.width(), made.height()) <= RecentPictures::Extent);
        QCOMPARE(QDir(m_folder("cache")).entryList(QDir::Files).size(), 1);
        QCOMPARE(pictureOf(good, {}), made); // it is kept
        QFile file(good);
        QVERIFY(file.open(QIODevice::Append) && file.write("x") == 1);
        file.close();
        QVERIFY(pictureOf(good, {}).isNull()); // but not for a file that has changed
    }

    void showsPicturesOnTheStartPage()
    {
        const QString file = m_folder("mine.quenmora");
        QVERIFY(writeFile(file, readFile(EXAMPLES_FOLDER "/sample.quenmora")));
        auto *page = m_window->findChild<StartPage *>();
        page->pictures()->setFolder(m_folder("cache"));
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
        controller()->newProject("Empty");
        ProjectActions *actions = m_window->projectActions();
        actions->createTileSet("Tiles", {}, 4, false);
        QSize size(8, 8);
        actions->createMap("Map", project().tileSets().first()->id(), size);
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
