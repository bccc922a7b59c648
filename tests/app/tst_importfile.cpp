// Files of any kind on their way into the open project, in the real window.

#include "app/importfile/fileimport.h"
#include "app/importfile/importfiledialog.h"
#include "support/windowscene.h"
#include "ui/picturepreview.h"

class TestImportFile : public QObject, protected WindowScene
{
    Q_OBJECT

    [[nodiscard]] ImportFileDialog &dialog() { return *m_window->fileImport()->dialog(); }
    template <typename Field>
    [[nodiscard]] Field &field(const char *name)
    {
        auto *found = dialog().findChild<Field *>(name);
        if (!found)
            qFatal("there is no %s", name);
        return *found;
    }
    void choose(const char *name, const QVariant &data)
    {
        field<QComboBox>(name).setCurrentIndex(field<QComboBox>(name).findData(data));
    }
    [[nodiscard]] QString facts() { return field<QLabel>("facts").text(); }

private slots:
    void init()
    {
        openWindow();
        emit m_window->menus()->fileMenu()->newProject("Game");
    }
    void cleanup() { m_window.reset(); }

    void importsOneAfterTheOther()
    {
        FileMenu &menu = *m_window->menus()->fileMenu();
        QList<FileRequest> requests;
        const QStringList files{m_folder("warm.pal", QByteArray("\xE0\x00", 2).repeated(256)), m_folder("gone.nxt"),
                                m_folder("rocks.nxt", noise(32 * 5)), m_folder("unwanted.spr", noise(256)),
                                m_folder("cave.map", QByteArray("\x01\x00", 2).repeated(48))};
        menu.setFilesChooser([&](const FileRequest &request, QWidget *) {
            requests.append(request);
            return requests.size() == 1 ? files : QStringList();
        });
        EditorInput::trigger(menu, QString::fromUtf8("Import…"));

        QVERIFY(dialog().isVisible() && !field<PicturePreview>("").picture().isNull());
        QVERIFY(dialog().windowTitle().startsWith("Import (1 of 5)"));
        QCOMPARE(facts(), "Colours: 256");
        QCOMPARE(dialog().okButton()->text(), "&Import");
        field<QLineEdit>("name").setText(" ");
        dialog().accept();
        QCOMPARE(dialog().error(), "Please enter a name");
        field<QLineEdit>("name").setText("Warm");
        dialog().accept();
        const QPointer<Palette> palette = project().palettes().constFirst();
        QCOMPARE(palette->name(), "Warm");
        QCOMPARE(palette->rawColour(255), 0xE000);
        QCOMPARE(message(), "Imported warm.pal: Colours: 256");

        QVERIFY(dialog().windowTitle().startsWith("Import (3 of 5)"));
        QCOMPARE(field<QComboBox>("palette").currentData().toUuid(), palette->id()); // that is in front
        QCOMPARE(field<PicturePreview>("").picture().pixel(0, 0), 0xFFFF0000);
        dialog().accept();
        const QPointer<TileSet> tiles = project().tileSets().constFirst();
        QCOMPARE(tiles->name(), "rocks");
        QCOMPARE(tiles->count(), 5);
        QCOMPARE(tiles->palette(), palette);

        EditorInput::button(dialog(), "&Skip")->click(); // no sprites
        QVERIFY(dialog().isVisible() && dialog().windowTitle().startsWith("Import (5 of 5)"));
        QCOMPARE(field<QComboBox>("tileSet").currentData().toUuid(), tiles->id());
        QVERIFY(!field<QComboBox>("palette").isVisible()); // the tile set has one
        choose("order", "columns");
        field<QSpinBox>("width").setValue(8);
        QVERIFY(!EditorInput::button(dialog(), "&Skip")->isVisible()); // there is none after it
        dialog().accept(); // what was chosen last counts, though nobody has looked at it yet
        const QPointer<Map> map = project().maps().constFirst();
        QCOMPARE(map->size(), QSize(8, 6));
        QCOMPARE(map->tileSet(), tiles);
        QVERIFY(!dialog().isVisible() && project().spriteBanks().isEmpty());
        QVERIFY(WindowScene::dialog()->isVisible()); // of the file that is gone, when nothing else is asked
        WindowScene::dialog()->accept();

        // the next time the dialog begins where these were
        EditorInput::trigger(menu, QString::fromUtf8("Import…"));
        QCOMPARE(requests.value(1).folder, m_folder());
    }

    void putsTilesIntoASetAsOneStep()
    {
        const auto tiles = project().createTileSet("Rocks", {}, 3, false);
        documents().openTileSet(tiles->id());
        const TileSet::Snapshot before = tiles->snapshot();
        m_window->fileImport()->importFiles({m_folder("more.nxt", noise(32 * 4))});
        QVERIFY(!field<QSpinBox>("at").isVisible());
        choose("target", tiles->id());
        QVERIFY(field<QSpinBox>("at").isVisible() && !field<QLineEdit>("name").isVisible());
        field<QSpinBox>("at").setValue(2);
        dialog().accept();
        QCOMPARE(tiles->count(), 6);
        documents().undoGroup()->undo();
        QVERIFY(tiles->snapshot() == before);

        // where they went is known when the file is imported again
        int at = 0;
        connect(m_window->fileImport(), &FileImport::imported, this,
                [&at](const QString &, const Importing::ImportChoices &choices) { at = choices.at; });
        m_window->fileImport()->importFiles({m_folder("more.nxt")});
        choose("target", tiles->id());
        dialog().accept();
        QCOMPARE(at, 3);
    }

    void saysWhatCannotBe()
    {
        m_window->fileImport()->importFiles({m_folder("half.spr", noise(128))});
        QCOMPARE(field<QComboBox>("kind").currentData().toString(), "sprites-packed");
        choose("kind", "tile-attributes");
        QVERIFY(!field<QLineEdit>("name").isVisible());
        dialog().accept();
        QCOMPARE(dialog().error(), "There is nothing in the project into which it could go");
        choose("kind", "map-2byte");
        field<QSpinBox>("height").setValue(9999);
        field<QSpinBox>("width").setValue(9999);
        dialog().refresh();
        const QString reason =
            "That makes a map of 9999 × 9999 cells; 9999 along a side and 8000000 in all are the most";
        QCOMPARE(field<QLabel>("remarks").text(), reason);
        QVERIFY(field<PicturePreview>("").picture().isNull());
        dialog().accept();
        QCOMPARE(dialog().error(), reason);
        controller()->close();
        QVERIFY(!dialog().isVisible());
    }

    /// Pictures go to the dialogs for them, and the next file waits until these are closed.
    void takesFilesThatAreDropped()
    {
        const QImage picture =
            pictureOf({16, 8}, QImage::Format_RGB32, [](int i) { return i == 0 ? 0xFF00FF00 : 0xFFFF0000; });
        const QUrl level = QUrl::fromLocalFile(m_folder("level.png", SampleProject::png(picture)));
        QMimeData data;
        data.setUrls(
            {level, level, QUrl::fromLocalFile(m_folder("a.pal", noise(512))), QUrl("https://example.com/b.pal")});
        QVERIFY(EditorInput::dropFromElsewhere(*m_window, {50, 50}, data));
        QCoreApplication::processEvents();
        QVERIFY(dialog().windowTitle().startsWith("Import (1 of 3)"));
        QCOMPARE(field<QComboBox>("kind").currentData().toString(), "picture-map");
        QCOMPARE(dialog().okButton()->text(), QString::fromUtf8("C&ontinue…"));
        dialog().accept();
        QCOMPARE(project().maps().size(), 1); // nothing is to be asked about this one
        QCOMPARE(project().maps().constFirst()->size(), QSize(2, 1));
        QCoreApplication::processEvents();

        QVERIFY(dialog().windowTitle().startsWith("Import (2 of 3)"));
        choose("kind", "picture-sprites");
        dialog().accept();
        auto *sprites = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(sprites && sprites != &dialog() && !dialog().isVisible());
        sprites->reject();
        QCoreApplication::processEvents();
        QVERIFY(dialog().isVisible() && dialog().windowTitle().startsWith("Import (3 of 3)"));
        dialog().accept();
        QCOMPARE(project().palettes().size(), 2);

        QVERIFY(EditorInput::dropFromElsewhere(*m_window, {50, 50}, data));
        QCoreApplication::processEvents();
        dialog().reject(); // all of them
        QVERIFY(!dialog().isVisible());

        // there is nothing into which they could go
        controller()->close();
        QVERIFY(!EditorInput::dropFromElsewhere(*m_window, {50, 50}, data));
    }
};

QUENMORA_TEST_MAIN(TestImportFile)
#include "tst_importfile.moc"
