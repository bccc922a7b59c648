#include "app/commands/commanddesk.h"
#include "app/commands/commandpalette.h"
#include "app/commands/commandplaces.h"
#include "app/commands/commandsearch.h"
#include "app/commands/shortcutsdialog.h"
#include "app/commands/shortcutsfile.h"
#include "app/commands/shortcuttable.h"
#include "app/platform.h"
#include "app/unsavedmark.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "support/windowscene.h"

namespace {

const QString Draw = "mapEditor.draw";

QString shortcutsPath(const QString &suffix = {})
{
    return Platform::homeFolder().filePath(".config/quenmora/shortcuts.json" + suffix);
}

QString textOf(const Commands::Keys &keys)
{
    return QKeySequence::listToString(keys, QKeySequence::PortableText);
}

} // namespace

/// Commands by their names: their keys, the file that keeps these, and the palette that finds them.
class TestCommands : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(QFileInfo(shortcutsPath()).path()).removeRecursively();
        openWindow();
    }
    void cleanup()
    {
        m_window.reset();
        Commands::instance()->choose({});
    }

    void everyCommandHasANameOfItsOwn()
    {
        openSample();
        QHash<QString, const QAction *> named;
        QStringList unnamed;
        QSet<QPair<const QObject *, QString>> places;
        for (const QAction *action : m_window->findChildren<QAction *>()) {
            const QString name = action->objectName();
            const auto *bar = qobject_cast<const QToolBar *>(action->parent());
            const bool isOfBar = bar && action == bar->toggleViewAction();
            const bool isFixed = isOfBar && bar->parentWidget() != &*m_window; // in an editor, where nobody hides it
            const bool isLabel = action->text() == "None" || action->text() == "Main"; // no project, the palette
            if (action->isSeparator() || action->menu() || action->text().isEmpty() || isFixed || isLabel
                || action->property("filePath").isValid() || name.startsWith("_q_")) // which Qt adds to fields
                continue;
            if (!name.contains('.')) {
                unnamed.append(action->text());
                continue;
            }
            QVERIFY2(!places.contains({action->parent(), name}), qPrintable(name));
            places.insert({action->parent(), name});
            const QAction *same = named.value(name, action);
            QVERIFY2(same->iconText() == action->iconText() || name.startsWith("edit."), qPrintable(name));
            QCOMPARE(same->shortcuts(), action->shortcuts());
            named.insert(name, action);
        }
        QCOMPARE(unnamed.join(", "), QString());
        QVERIFY(named.size() > 150);

        const QList<Commands::Command> commands = Commands::instance()->all();
        const ShortcutTable table(commands, {}, CommandPlaces::canMeet);
        for (int i = 0; i < commands.size(); ++i) {
            const QByteArray name = commands.at(i).name.toUtf8();
            QVERIFY2(!commands.at(i).text.isEmpty() && !CommandPlaces::placeOf(commands.at(i)).isEmpty(), name);
            QVERIFY2(!table.hasDoubles(i), name);
        }
    }

    void keysReachEditorsThatAreOpenedLater()
    {
        Commands::instance()->choose(
            {{Draw, {Qt::Key_B}}, {"pixels.draw", {}}, {"file.save", {Qt::Key_F2, Qt::Key_F3}}});
        openSample();
        const auto keysOf = [](const QString &name) {
            QStringList keys = valuesOf(Commands::instance()->actionsOf(name),
                                        [](const QAction *action) { return textOf(action->shortcuts()); });
            keys.removeDuplicates();
            return keys.join('|');
        };
        QCOMPARE(keysOf(Draw), "B");
        QCOMPARE(Commands::instance()->actionsOf(Draw).first()->toolTip(), "Draw [B]");
        QCOMPARE(keysOf("pixels.draw"), "");
        QCOMPARE(Commands::instance()->actionsOf("pixels.draw").first()->toolTip(), "Draw");
        QCOMPARE(keysOf("file.save"), "F2; F3");
        // and those that are open get their usual ones back
        Commands::instance()->choose({});
        QCOMPARE(keysOf(Draw), "D");
        QCOMPARE(Commands::instance()->actionsOf(Draw).first()->toolTip(), "Draw [D]");
        QCOMPARE(keysOf("file.save"), textOf(QKeySequence::keyBindings(QKeySequence::Save)));
    }

    void toolKeysLeaveTheArrowsAlone()
    {
        openSample();
        documents().setActiveImageEditor(project().images().first()->id());
        activateWindow();
        Canvas *canvas = page<ImageEditor::View>()->canvas();
        canvas->setFocus();
        for (const auto &[key, tool] : {std::pair(Qt::Key_L, Quenmora::Ui::Line), {Qt::Key_S, Quenmora::Ui::Select}}) {
            QTest::keyClick(canvas, key);
            QCOMPARE(canvas->mode(), tool);
        }
        canvas->setZoomLevel(16);
        const QSignalSpy scrolled(canvas, &Canvas::scrollPositionChanged);
        QTest::keyClick(canvas, Qt::Key_Right);
        QVERIFY(scrolled.size() > 0);
        QCOMPARE(canvas->mode(), Quenmora::Ui::Select);
    }

    // The file

    void keepsWhatWasChosen_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<Commands::Choices>("read");
        QTest::addColumn<Commands::Choices>("chosen");
        QTest::addColumn<QString>("after"); // empty for no file
        using Choices = Commands::Choices;
        const auto keys = [](auto... key) { return Commands::Keys{QKeySequence(key)...}; };
        QTest::newRow("none") << "" << Choices{} << Choices{} << "";
        QTest::newRow("first") << "" << Choices{} << Choices{{"a.b", keys("Ctrl+K, Ctrl+S", "F5")}, {"a.c", {}}}
                               << R"({"a.b":["Ctrl+K, Ctrl+S","F5"],"a.c":[]})";
        QTest::newRow("reset") << R"({"a.b":["F5"]})" << Choices{{"a.b", keys("F5")}} << Choices{} << "";
        QTest::newRow("twice the same") << R"({"a.b":["F5","F5"]})" << Choices{{"a.b", keys("F5")}}
                                        << Choices{{"a.b", keys("F5")}} << R"({"a.b":["F5"]})";
        // of a later version
        QTest::newRow("not understood") << R"({"a.b":"F5","a.c":["Wink"],"a.d":[7],"a.e":[""],"z":["F6"]})"
                                        << Choices{{"z", keys("F6")}} << Choices{{"a.d", keys("F7")}, {"z", keys("F6")}}
                                        << R"({"a.b":"F5","a.c":["Wink"],"a.d":["F7"],"a.e":[""],"z":["F6"]})";
    }

    void keepsWhatWasChosen()
    {
        QFETCH(const QString, before);
        QFETCH(const Commands::Choices, chosen);
        QFETCH(const QString, after);
        QVERIFY(before.isEmpty() || writeFile(shortcutsPath(), before.toUtf8()));
        ShortcutsFile file(shortcutsPath());
        QCOMPARE(file.load(), QString());
        QTEST(file.choices(), "read");
        QCOMPARE(file.save(chosen), QString());
        QCOMPARE(QFile::exists(shortcutsPath()), !after.isEmpty());
        const QByteArray written = QJsonDocument::fromJson(readFile(shortcutsPath())).toJson(QJsonDocument::Compact);
        QCOMPARE(QString::fromUtf8(written), after);
    }

    void setsADamagedFileAside()
    {
        for (const QByteArray &bytes : {QByteArray(), QByteArray(R"({"file.save": ["F5")"),
                                        QByteArray(R"(["file.save"])"), QByteArray((1 << 20) + 1, ' ') + "{}"}) {
            init();
            QVERIFY(writeFile(shortcutsPath(), bytes));
            for (const bool told : {true, false}) { // once
                openWindow();
                QCoreApplication::processEvents();
                QCOMPARE(dialog()->isVisible(), told);
                m_window.reset();
                QCOMPARE(readFile(shortcutsPath(".bad")), bytes);
                QVERIFY(!QFile::exists(shortcutsPath()));
            }
        }
    }

    // Choosing

    void knowsWhichKeysMeet()
    {
        openSample();
        const ShortcutTable table(Commands::instance()->all(), {}, CommandPlaces::canMeet);
        const QStringList names = valuesOf(table.commands(), &Commands::Command::name);
        // a command, a key for it, and what has that key and can be meant in the same place
        const std::tuple<QString, QString, QString> cases[]{
            {Draw, "D", ""}, // its own
            {Draw, "L", "mapEditor.line"}, // in the same editor
            {"mapEditor.placeAnim", "[", ""}, // in another one
            {Draw, "Ctrl+S", "file.save"}, // in the whole window
            {"file.save", "D", "mapEditor.draw pixels.draw"}, // from the window
            {"colours.darken", "X", "pixels.swapColours"}, // in a part of an editor
            {"file.save", "Ctrl+N, F", "file.new"}, // begins with it
        };
        for (const auto &[command, key, expected] : cases) {
            const int index = int(names.indexOf(command));
            QStringList doubles = valuesOf(table.doublesOf(index, QKeySequence(key)), [&](int i) { return names[i]; });
            doubles.sort();
            QCOMPARE(doubles.join(' '), expected);

            ShortcutTable changed = table;
            changed.setKeys(index, {QKeySequence(key), QKeySequence(), QKeySequence(key)});
            QCOMPARE(textOf(changed.keysOf(index)), key);
            QCOMPARE(changed.hasDoubles(index), !doubles.isEmpty());
            for (const QString &other : std::as_const(doubles))
                changed.removeKey(int(names.indexOf(other)), QKeySequence(key));
            QVERIFY(!changed.hasDoubles(index));
            changed.setKeys(index, table.commands().at(index).usualKeys); // which is no difference
            QCOMPARE(changed.choices().contains(command), false);
            changed.resetAll();
            QCOMPARE(changed.choices(), Commands::Choices());
        }
    }

    void choosesKeysInTheDialog()
    {
        // of an editor, too, that was not opened yet
        const auto open = [this] {
            m_window->commands()->showShortcuts();
            return m_window->findChild<ShortcutsDialog *>();
        };
        const auto shown = [](const ShortcutsDialog *dialog) {
            QStringList texts;
            const auto *list = dialog->findChild<QTreeWidget *>();
            for (int row = 0; row < list->topLevelItemCount(); ++row) {
                const QTreeWidgetItem *item = list->topLevelItem(row);
                if (!item->isHidden())
                    texts.append(item->text(0) + '|' + item->text(1) + '|' + item->text(2));
            }
            return texts;
        };
        QPointer<ShortcutsDialog> dialog = open();
        dialog->findChild<QLineEdit *>()->setText("BUCKET map");
        QCOMPARE(shown(dialog), QStringList{"Bucket fill|Map Editor|F"});
        QList<QKeySequenceEdit *> fields = dialog->findChildren<QKeySequenceEdit *>();
        QCOMPARE(fields.size(), 2); // what is searched for, and the key
        fields.last()->setKeySequence(QKeySequence("D"));
        auto *warning = EditorInput::button(*dialog, "&Take It Away There");
        QVERIFY(warning->isVisible());
        warning->click();
        QVERIFY(!warning->isVisible());
        QVERIFY(!QFile::exists(shortcutsPath()));
        dialog->accept();
        const QByteArray both = R"({"mapEditor.draw":[],"mapEditor.fill":["D"]})";
        QCOMPARE(QJsonDocument::fromJson(readFile(shortcutsPath())), QJsonDocument::fromJson(both));
        QTRY_VERIFY(!dialog);

        dialog = open();
        dialog->findChildren<QKeySequenceEdit *>().first()->setKeySequence(QKeySequence("D"));
        QCOMPARE(shown(dialog), (QStringList{"Bucket fill|Map Editor|D", "Draw|Pixel Editors|D"}));
        EditorInput::button(*dialog, "Reset &All")->click();
        dialog->reject(); // and nothing came of it
        QCOMPARE(QJsonDocument::fromJson(readFile(shortcutsPath())), QJsonDocument::fromJson(both));
        QTRY_VERIFY(!dialog);
        dialog = open();
        EditorInput::button(*dialog, "Reset &All")->click();
        dialog->accept();
        QVERIFY(!QFile::exists(shortcutsPath()));
    }

    // The palette

    void findsTheBestFirst()
    {
        QList<CommandSearch::Item> items{{"New", "File"},     {"New Map", "Map"},           {"New Palette", "Palette"},
                                         {"Paste", "Edit"},   {"\u00C9t\u00E9", "Palette"}, {"Level 2", "Map"},
                                         {"Level 10", "Map"}, {"Next Tile", "Tiles"},       {"Environment", "Map"}};
        for (int number = 1; number <= 40; ++number)
            items.append({QString("Tile %1").arg(number), "Cave", true, true});
        const auto find = [&items](const QString &query) {
            return valuesOf(CommandSearch(items).find(query), [&](int i) { return items[i].text; });
        };
        const std::pair<const char *, QStringList> cases[]{
            // the first that are found
            {"", {"New", "New Map", "New Palette", "Paste"}},
            {"new", {"New", "New Map", "New Palette"}},
            {"nm", {"New Map", "Environment"}}, // beginnings of words before what is inside one
            {"map new", {"New Map"}},
            {"n pal", {"New Palette"}},
            {"NEWP", {"New Palette"}},
            {"ete", {"\u00C9t\u00E9"}},
            {"past", {"Paste"}},
            {"level", {"Level 2", "Level 10"}},
            {"level 1", {"Level 10"}},
            {"tile 3", {"Tile 3", "Tile 30"}},
            {"37", {"Tile 37"}},
            {"tile", {"Next Tile"}}, // and not 40 with numbers
        };
        for (const auto &[query, found] : cases)
            QCOMPARE(find(query).mid(0, found.size()), found);
        QVERIFY(find("zzz").isEmpty() && !find("tile").contains("Tile 3"));

        // among equals: what can be run, and then what was used last
        items[1].isEnabled = false;
        QCOMPARE(CommandSearch(items).find("new", {2, 1}).mid(0, 3), (QList<int>{0, 2, 1}));
    }

    void paletteReachesCommandsAssetsAndTiles()
    {
        openSample();
        activateWindow();
        const auto run = [this](const QString &query) {
            m_window->commands()->showPalette();
            auto *palette = m_window->findChild<CommandPalette *>();
            auto *field = palette->findChild<QLineEdit *>();
            QTest::keyClicks(field, query);
            QTest::keyClick(field, Qt::Key_Down); // and around to
            QTest::keyClick(field, Qt::Key_Up);
            QTest::keyClick(field, Qt::Key_Return);
            QCoreApplication::processEvents();
            return !palette->isVisible();
        };
        auto *map = page<MapEditor::View>();
        QVERIFY(run("bucket fill"));
        QCOMPARE(map->grid()->mode(), Quenmora::Ui::Fill);
        QVERIFY(run("tile 2"));
        QCOMPARE(views().tileEditor->tileIndex(), 1);
        QCOMPARE(map->grid()->currentTileIndex(), 1);
        const int rows = project().maps().first()->size().height();
        QVERIFY(run("add row bottom"));
        QCOMPARE(project().maps().first()->size().height(), rows + 1);
        const auto image = project().images().first();
        QVERIFY(run(image->name()));
        QCOMPARE(DocumentTabView::documentId(tabs()->currentWidget()), image->id());
        QVERIFY(!run("bucket fill")); // belongs to the map, which is not in front
    }

    // What is not saved

    void tellsOfUnsavedChanges()
    {
        openSample();
        auto *mark = m_window->statusBar()->findChild<UnsavedMark *>();
        controller()->setFileNameCallback([this] { return m_folder("a.quenmora"); });
        const auto icon = [this, mark] {
            mark->look();
            return m_window->windowIcon().pixmap(32).toImage();
        };
        const QImage marked = icon();
        QVERIFY(mark->isVisible());
        controller()->save();
        QVERIFY(icon() != marked && !mark->isVisible());
        const QString title = m_window->windowTitle();
        project().maps().first()->setName("Renamed"); // which no undo stack knows
        QCOMPARE(icon(), marked);
        QVERIFY(mark->isVisible() && m_window->windowTitle() == title);
    }
};

QUENMORA_TEST_MAIN(TestCommands)
#include "tst_commands.moc"
