
#include "app/dialogs/exportdialog.h"
#include "app/nextsteps.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/map/exportdialog.h"
#include "model/assetname.h"
#include "support/windowscene.h"

namespace {

/// The text of the tool tip that a widget shows at a point.
QString toolTipAt(QWidget *widget, QPoint pos)
{
    QHelpEvent help(QEvent::ToolTip, pos, widget->mapToGlobal(pos));
    QApplication::sendEvent(widget, &help);
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const auto *tip = qobject_cast<const QLabel *>(window);
        if (tip && window->inherits("QTipLabel") && QToolTip::isVisible() && tip->textFormat() == Qt::PlainText)
            return tip->text();
    }
    return {};
}

/// What every list, tree and chooser of the program shows.
QStringList listedTexts()
{
    QStringList texts;
    const auto add = [&texts](const QAbstractItemModel *model, const QModelIndex &above, auto &&self) -> void {
        for (int row = 0; row < model->rowCount(above); ++row) {
            const QModelIndex index = model->index(row, 0, above);
            texts.append(index.data(Qt::DisplayRole).toString());
            QVERIFY2(!Qt::mightBeRichText(index.data(Qt::ToolTipRole).toString()), qPrintable(texts.last()));
            self(model, index, self);
        }
    };
    for (const QWidget *widget : QApplication::allWidgets()) {
        if (const auto *view = qobject_cast<const QAbstractItemView *>(widget); view && view->model())
            add(view->model(), {}, add);
    }
    return texts;
}

} // namespace

/// What the window tells people: names as they are, what was written where, and what comes next.
class TestTexts : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void init() { openWindow(); }
    void cleanup() { m_window.reset(); }

    void showsNamesAsTheyAre_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"<img src='/tmp/pipe'>", "&lt;i>", "<?xml version='1.0'?> <b>", "<!DOCTYPE html> x",
                                 "Run %1 of %2, %3 %4 %5 %L1"})
            QTest::newRow(name) << name;
    }

    void showsNamesAsTheyAre()
    {
        QFETCH(const QString, name);
        openSample();
        forEachAsset(project(), [&name](auto &asset) { asset.setName(name); });
        tabs()->closeAllTabs(); // which follow that, too
        openAll();
        m_window->menus()->fileMenu()->addRecentFile("/" + name);
        QCoreApplication::processEvents(); // what is to be deleted later
        for (QWidget *widget : QApplication::allWidgets()) {
            const char *kind = widget->metaObject()->className();
            QVERIFY2(!Qt::mightBeRichText(widget->toolTip()), kind);
            if (const auto *label = qobject_cast<QLabel *>(widget))
                QVERIFY2(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()), kind);
            const auto *menu = qobject_cast<QMenu *>(widget);
            for (const QAction *action : menu && menu->toolTipsVisible() ? menu->actions() : QList<QAction *>())
                QVERIFY2(!Qt::mightBeRichText(action->toolTip()), qPrintable(action->text()));
        }

        // with the first row of details, and as they are everywhere else
        const QStringList texts = listedTexts();
        QVERIFY(texts.contains(name) && texts.contains(name + "\n2 frame(s) [2x1]"));
        int tips = 0;
        for (QTabBar *bar : m_window->findChildren<QTabBar *>(Qt::FindDirectChildrenOnly)) { // of the docks
            for (int tab = 0; tab < bar->count(); ++tab)
                tips += toolTipAt(bar, bar->tabRect(tab).center()).contains(name);
        }
        QVERIFY(tips > 0 || name.size() < 10); // there is room for short ones
        QToolTip::hideText();
    }

    void takesNoEndlessNames()
    {
        openSample();
        for (const char *name :
             {"file.new", "palette.new", "tiles.new", "tiles.createAnimations", "map.new", "sprites.new", "image.new"})
            m_window->findChild<QAction *>(name)->trigger();
        ProjectTree *tree = views().project->tree();
        tree->editItem(tree->itemOf(project().maps().first()->id()));
        EditorInput::trigger(*views().palette->findChild<QMenu *>(), "Rename");
        int fields = 0;
        for (const QLineEdit *field : m_window->findChildren<QLineEdit *>()) {
            if (qobject_cast<QAbstractSpinBox *>(field->parentWidget()))
                continue;
            QVERIFY2(field->maxLength() == AssetName::MaxLength, field->parentWidget()->metaObject()->className());
            ++fields;
        }
        QCOMPARE(fields, 7 + 2 + 3); // dialogs, renames, and animations of two kinds and a placed sprite
    }

    void tellsWhatWasExported()
    {
        openSample();
        FileRequest request;
        QString answer;
        m_window->menus()->setFileChooser([&](const FileRequest &asked, QWidget *) {
            request = asked;
            return answer;
        });
        const auto exportTo = [&](const QString &file, int menu, const char *entry) {
            answer = m_folder(file);
            EditorInput::trigger(*m_window->menus()->actions().at(menu)->menu(), entry);
            auto *dialog = m_window->findChild<TileEditor::ExportDialog *>();
            if (dialog && dialog->isVisible()) { // asks which tiles
                QCOMPARE(dialog->windowTitle(), "Export Tiles: Tiles");
                dialog->accept();
            }
        };
        // a menu of the menu bar and its entry, the file, what it is of, and its size
        const std::tuple<int, const char *, QString, const char *, int> cases[]{
            {2, "Export", "colours.npl", "Main", 513},
            {3, "Export", "tiles.bin", "Tiles", 256},
            {3, "Export Attributes", "attributes.bin", "Tiles", 4},
            {3, "Export Attributes", "attributes.asm", "Tiles", 240},
            {4, "Export", "level.map", "Level", 48},
            {5, "Export Data", "hero.spr", "Hero", 768}};
        for (const auto &[menu, entry, file, asset, size] : cases) {
            QCoreApplication::processEvents(); // or it would be told together with the one before it
            exportTo(file, menu, entry);
            QCOMPARE(request.asset, asset);
            const qsizetype lineEnds =
                file.endsWith(".asm") ? readFile(answer).count('\r') : 0; // where those are two bytes
            QCOMPARE(message(),
                     QString("Exported %1 to %2 (%3 bytes)")
                         .arg(asset, QDir::toNativeSeparators(answer))
                         .arg(size + lineEnds));

            if (file.endsWith("tiles.bin") || file.endsWith(".spr"))
                QTest::ignoreMessage(QtWarningMsg, file.endsWith(".spr") ? "Failed to save data" : "Export failed!");
            exportTo("gone/" + file, menu, entry);
            QCOMPARE(dialog()->text(), "There was a problem exporting data");
            QCOMPARE(dialog()->detail(), "There is no folder " + QDir::toNativeSeparators(m_folder("gone")));
            dialog()->accept();
        }
    }

    void tellsWhatWentIntoAFolder()
    {
        openSample();
        const QPointer<Map> map = project().maps().first();
        auto *view = tabs()->currentWidget();
        QVERIFY(QFile(m_folder("Main_palette.bin")).open(QIODevice::WriteOnly));
        QMetaObject::invokeMethod(view, "toolPaletteClicked", Q_ARG(Quenmora::Ui::ToolButton, Quenmora::Ui::Save));
        auto *folders = view->findChild<QFileDialog *>();
        QCOMPARE(folders->windowTitle(), "Choose a directory to export anim into");
        QVERIFY(folders->windowHandle()->title().contains(": Level"));
        folders->close();
        const auto exportTo = [&](const QString &folder) {
            emit folders->fileSelected(folder);
            auto *dialog = view->findChild<MapEditor::ExportDialog *>();
            QStringList shown{dialog->windowTitle()};
            for (const QLabel *label : dialog->findChildren<QLabel *>())
                shown.append(label->text());
            dialog->accept();
            return shown.join('|');
        };
        const QString asked = exportTo(m_folder());
        for (const char *text :
             {"Export: Level", "|Level_tilemap.bin|", "|Tiles_tiles.nxt|", "|Main_palette.bin (replaces"})
            QVERIFY2(asked.contains(text), qPrintable(asked));
        QCOMPARE(message(),
                 QString("Exported to %1: Level_tilemap.bin (48 bytes), Tiles_tiles.nxt (128 bytes), Main_palette.bin "
                         "(512 bytes)")
                     .arg(QDir::toNativeSeparators(m_folder())));

        map->setName("in/out");
        exportTo(m_folder());
        QCOMPARE(dialog()->text(), "Exporting the map failed");
        QVERIFY2(dialog()->detail().contains("called in/out_tilemap.bin: a slash"), qPrintable(dialog()->detail()));
    }

    void tellsWhereAnImageWent()
    {
        openSample();
        for (const bool scratch : {true, false}) {
            const QString file = m_folder(scratch ? "scratch.bmp" : "title.bmp");
            if (scratch)
                tabs()->setScratchEditorVisible(true);
            else
                documents().setActiveImageEditor(project().images().first()->id());
            QCoreApplication::processEvents(); // or both would be told together
            auto *view = tabs()->currentWidget();
            QVERIFY(QMetaObject::invokeMethod(view, "exportImage", Q_ARG(QString, file)));
            QCOMPARE(message(),
                     QString("Exported %1 to %2 (%3 bytes)")
                         .arg(scratch ? "Scratch Image" : "Title", QDir::toNativeSeparators(file),
                              QLocale().toString(QFileInfo(file).size())));
        }
    }

    void proposesWhatIsMeant()
    {
        controller()->newProject("Rise/Fall: 2");
        QStringList proposed;
        QTimer::singleShot(0, this, [&proposed] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            proposed = dialog->selectedFiles();
            dialog->reject();
        });
        controller()->save();
        QCOMPARE(QFileInfo(proposed.value(0)).fileName(), "Rise_Fall_ 2.quenmora");

        for (const char *name : {"Night", "Day", "Dusk"})
            project().createPalette(CreateAction::Blank, name);
        const QPointer<Palette> inFront = project().palettes().first(); // and the last in the list
        documents().setActivePalette(inFront->id());
        m_window->findChild<QAction *>("image.new")->trigger();
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QCOMPARE(dialog->findChildren<QComboBox *>().last()->currentText(), "Night");
    }

    void saysHowToBegin()
    {
        const auto *steps = m_window->findChild<NextSteps *>();
        QVERIFY(!steps->isVisible());
        controller()->newProject("Game");
        QVERIFY(steps->isVisible());
        ImageEditor::View *scratch = tabs()->scratchEditor();
        QCOMPARE(tabs()->currentWidget(), scratch);
        // which has no colours yet, and does not show what stood there before
        QWidget *canvas = scratch->canvas();
        QImage shown(canvas->size(), QImage::Format_RGB32);
        shown.fill(Qt::magenta);
        canvas->render(&shown, {}, {}, {});
        QCOMPARE(shown.pixelColor(0, 0), canvas->palette().color(QPalette::Window));
        QString listed;
        m_window->menus()->setFileChooser([&listed](const FileRequest &request, QWidget *) {
            listed = request.nameFilters.value(0);
            return QString();
        });
        steps->findChild<QAbstractButton *>()->click();
        QVERIFY2(listed.contains("*.png"), qPrintable(listed));
        project().createPalette(CreateAction::Blank, "Main"); // which is not listed, and makes no picture yet
        QVERIFY(steps->isVisible());
        const QUuid tiles = project().createTileSet("Tiles", {}, 1, false)->id();
        QVERIFY(!steps->isVisible());
        m_window->projectActions()->deleteItem(ProjectTree::TileSetNode, tiles);
        QVERIFY(steps->isVisible());
        controller()->close();
        QVERIFY(!steps->isVisible());
    }
};

QUENMORA_TEST_MAIN(TestTexts)
#include "tst_texts.moc"
