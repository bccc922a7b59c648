// All of the window in a language that shows what is not translated, and what is cut where texts are longer than the
// English ones or does not fit on the screen. QUENMORA_LANGUAGE=de does it in that language instead, of which only the
// latter is asked, QUENMORA_PICTURES=FOLDER leaves pictures of what was seen (scripts/languages.sh), and
// support/desktop.h tells what else can be asked for.

#include "app/dialogs/importbinarydialog.h"
#include "app/dialogs/importpicturedialog.h"
#include "app/dialogs/importzxfontdialog.h"
#include "app/exportproject/addoutputsdialog.h"
#include "app/exportproject/exportprojectdialog.h"
#include "app/exportproject/exportquestion.h"
#include "app/exportproject/outputdialog.h"
#include "app/exportproject/severaloutputsdialog.h"
#include "app/foreignchange.h"
#include "app/guide.h"
#include "app/imports/pictureimport.h"
#include "app/menus/helpmenu.h"
#include "editors/canvas/imageimportdialog.h"
#include "editors/map/exportdialog.h"
#include "language/catalogues.h"
#include "support/desktop.h"
#include "support/lupdate.h"
#include "support/platform.h"
#include "support/pseudolanguage.h"
#include "support/usualrecipe.h"
#include "support/windowscene.h"
#include "update/updatedialog.h"

namespace {

constexpr QSize Frame(4, 36); ///< of what a desktop puts around a window

/// Qt's own, which are as they are.
bool isQts(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (qobject_cast<const QFileDialog *>(widget) || qobject_cast<const QColorDialog *>(widget))
            return true;
    }
    return false;
}

/// What a widget says, whether seen or not.
QStringList textsOf(const QWidget &widget)
{
    QStringList texts{widget.toolTip(), widget.statusTip(), widget.accessibleName(), widget.accessibleDescription()};
    for (const char *name :
         {"text", "title", "placeholderText", "prefix", "suffix", "specialValueText", "windowTitle"}) {
        const bool isTyped = qobject_cast<const QLineEdit *>(&widget) && qstrcmp(name, "text") == 0;
        if (!isTyped && !(widget.isWindow() && widget.inherits("MainWindow")))
            texts.append(widget.property(name).toString());
    }
    for (const QAction *action : widget.actions())
        texts += {action->text(), action->toolTip(), action->statusTip()};
    if (const auto *bar = qobject_cast<const QTabBar *>(&widget)) {
        for (int tab = 0; tab < bar->count(); ++tab)
            texts += {bar->tabText(tab), bar->tabToolTip(tab)};
    }
    const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
    const auto *box = qobject_cast<const QComboBox *>(&widget);
    if (const QAbstractItemModel *model = view ? view->model() : box ? box->model() : nullptr) {
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 0; column < model->columnCount(); ++column) {
                for (const int role : {Qt::DisplayRole, Qt::ToolTipRole})
                    texts.append(model->index(row, column).data(role).toString());
            }
        }
        for (int section = 0; view && section < model->columnCount(); ++section)
            texts.append(model->headerData(section, Qt::Horizontal).toString());
    }
    return texts;
}

/// How many pixels a widget lacks to show its text; 0 when all is seen.
int missingWidth(QWidget &widget)
{
    const auto advance = [&widget](const QString &text) {
        return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
    };
    if (const auto *label = qobject_cast<QLabel *>(&widget)) {
        if (label->wordWrap())
            return std::max(label->heightForWidth(label->width()) - label->height(), 0);
        return label->text().isEmpty() ? 0 : std::max(label->minimumSizeHint().width() - label->width(), 0);
    }
    if (const auto *box = qobject_cast<QComboBox *>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(box);
        option.editable = box->isEditable();
        const QRect field =
            box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
        const int icon = box->itemIcon(box->currentIndex()).isNull() ? 0 : box->iconSize().width() + 4;
        return std::max(advance(box->currentText()) + icon - field.width(), 0);
    }
    if (const auto *bar = qobject_cast<QTabBar *>(&widget)) {
        int most = 0;
        for (int tab = 0; tab < bar->count(); ++tab)
            most = std::max(most, advance(bar->tabText(tab)) - bar->tabRect(tab).width());
        return bar->elideMode() == Qt::ElideNone ? most : 0; // where the tool tip says all
    }
    if (const auto *header = qobject_cast<QHeaderView *>(&widget)) {
        int most = 0;
        for (int section = 0; header->model() && section < header->count(); ++section) {
            if (!header->isSectionHidden(section)
                && !header->model()->headerData(section, header->orientation()).isNull())
                most = std::max(most, header->sectionSizeHint(section) - header->sectionSize(section));
        }
        return most;
    }
    if (qobject_cast<QAbstractButton *>(&widget) && widget.property("text").toString().size() > 1)
        return std::max(widget.minimumSizeHint().width() - widget.width(), 0);
    if (auto *group = qobject_cast<QGroupBox *>(&widget))
        return std::max(advance(group->title()) - group->width(), 0);
    return 0;
}

/// Whether Tab or a pointer reaches a widget that does not say what it is. An empty bar of tabs waits for docks.
bool isNameless(QWidget &widget)
{
    const auto *bar = qobject_cast<QTabBar *>(&widget);
    const auto *button = qobject_cast<QAbstractButton *>(&widget);
    const bool isQts = qobject_cast<QTabBar *>(widget.parentWidget()) || widget.objectName().startsWith("qt_")
        || widget.inherits("QLineEditIconButton") || widget.inherits("QTableCornerButton");
    if (bar ? bar->count() == 0 : isQts)
        return false;
    if (widget.focusProxy() || !(widget.focusPolicy() & Qt::TabFocus))
        return button && button->text().isEmpty() && button->accessibleName().isEmpty();
    const QAccessibleInterface *met = QAccessible::queryAccessibleInterface(&widget);
    return !met || met->text(QAccessible::Name).isEmpty();
}

} // namespace

class TestLanguages : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Desktop::apply();
        QApplication::setApplicationName("Quenmora");
        QApplication::setApplicationDisplayName("Quenmora");
        const QString language = qEnvironmentVariable("QUENMORA_LANGUAGE");
        if (language.isEmpty()) {
            if (!Platform::HasLupdate)
                QSKIP("There is no lupdate, which finds all texts");
            const QString catalogue = m_folder("pseudo.ts");
            QCOMPARE(Lupdate::run(catalogue), QString());
            m_pseudo.emplace(catalogue);
            QVERIFY(!m_pseudo->isEmpty());
            QCoreApplication::installTranslator(&*m_pseudo);
        } else {
            qputenv("LANGUAGE", language.toUtf8());
            Catalogues::install(*qApp);
        }
        openWindow();
        m_window->resize(QSize(1280, 800).boundedTo(m_window->screen()->availableSize() - Frame));
        m_window->setDeletionCallback([](const DeletionQuestion &) { return false; });
        controller()->setFileNameCallback([] { return QString(); });
        m_window->menus()->setFileChooser([this](const FileRequest &request, QWidget *) { return fileFor(request); });
        look("start");
        controller()->newProject("1");
        look("empty");
    }

    /// Opens whatever menus and buttons open, with each kind of document in front.
    void saysAndShowsAll()
    {
        SampleProject::fill(project());
        forEachAsset(project(), [this](const auto &asset) { m_names.append(asset.name()); });
        m_names.removeAll(QString());
        const auto visit = [this](const char *name) {
            look(name);
            useAll(name);
        };
        documents().setActivePalette(project().palettes().first()->id());
        documents().setActiveImageEditor(project().images().first()->id());
        visit("image");
        documents().setActiveSpriteEditor(project().spriteBanks().first()->id());
        visit("sprites");
        documents().setActiveBlockEditor(project().blockSets().first()->id());
        visit("blocks");
        documents().setActiveMap(project().maps().first()->id());
        visit("map");
        for (QDockWidget *dock : m_window->findChildren<QDockWidget *>()) {
            dock->show();
            dock->raise();
            look(qPrintable("dock-" + dock->objectName()));
        }
        lookAtOtherDialogs();
        QCOMPARE(dialogsOfTheProgram() - m_seen, QSet<QString>());
        QCOMPARE(m_unguided, QSet<QString>());
        if (m_pseudo)
            m_untranslated += m_pseudo->strangers();
        else
            m_untranslated.clear(); // a language may have words of English
        int faults = 0;
        for (auto [fault, texts] :
             {std::pair("not translated", m_untranslated), {"cut", m_cut}, {"without a name", m_nameless}}) {
            texts.removeDuplicates();
            faults += int(texts.size());
            for (const QString &text : std::as_const(texts))
                qWarning("%s: %s", fault, qPrintable(text));
        }
        QCOMPARE(faults, 0);
    }

    void cleanupTestCase()
    {
        m_window.reset();
        if (m_pseudo)
            QCoreApplication::removeTranslator(&*m_pseudo);
    }

private:
    /// Opens what no menu opens with the sample project as it is.
    void lookAtOtherDialogs()
    {
        Project &sample = project();
        const QImage picture = pictureOf({240, 160}, QImage::Format_ARGB32, [](int i) {
            return qRgba(i * 37 % 256, i * (i % 101) / 7 % 256, i * 7 % 256, i % 3 ? 255 : 0);
        });
        const QString file = m_folder("4.png", SampleProject::png(picture));
        const auto show = [this](auto &&dialog, auto &&...what) {
            dialog.show(what...);
            look(dialog.metaObject()->className(), false);
        };
        show(ImportPictureDialog(), file, PictureLoss::of(file, nullptr));
        show(ImportZXFontDialog(), *sample.tileSets().first());
        show(SpriteEditor::ImportBinaryDialog(), sample, fileFor({{}, {"*.spr"}}));
        ImageEditor::ImportDialog image;
        image.setOffersNewPalette(true);
        show(image, picture, sample.palettes().first(), QSize(256, 192), 256);
        MapEditor::ExportDialog map;
        map.offer(*sample.maps().first(), QDir(m_folder()));
        show(map);
        UpdateDialog update;
        update.setRelease({"0.8", "stable", "2026-12-01", {}, {}}, "0.7", "2026-10-15");
        show(update);
        const NextData::Recipe usual = usualRecipe(sample);
        for (const NextData::Recipe &recipe : {usual, NextData::Recipe()})
            show(ExportProjectDialog(), sample, m_folder("5.quenmora"), recipe, true);
        show(AddOutputsDialog(), sample, NextData::Recipe());
        for (const NextData::RecipeOutput &output : usual.outputs())
            show(OutputDialog(), sample, output, NextData::TakenFiles());
        show(SeveralOutputsDialog(), 2);
        for (const auto kind : {ExportQuestion::Kind::SaveProject, ExportQuestion::Kind::StartAnew,
                                ExportQuestion::Kind::ReplaceRecipe}) {
            QTimer::singleShot(0, this, [this] { look("export-question", false); });
            QVERIFY(!askAboutExport(&*m_window, {kind, "/1", "2"}));
        }
        QTimer::singleShot(0, this, [this] { look("foreign-change", false); });
        QCOMPARE(askAboutForeignChange(&*m_window, {"/1", true}), ForeignChange::Cancel);
    }

    /// The names of the classes of dialogs in the sources, but of those that others are made of.
    [[nodiscard]] static QSet<QString> dialogsOfTheProgram()
    {
        static const QRegularExpression named(
            QStringLiteral("\\nclass (\\w+)(?: final)? *: *public (?:QDialog|DialogBase|CreationDialog)\\b"));
        QSet<QString> dialogs;
        for (QDirIterator files(QStringLiteral(SOURCE_FOLDER), {"*.h"}, QDir::Files, QDirIterator::Subdirectories);
             files.hasNext();) {
            for (auto found = named.globalMatch(QString::fromUtf8(readFile(files.next()))); found.hasNext();)
                dialogs.insert(found.next().captured(1));
        }
        return dialogs - QSet<QString>{"DialogBase", "CreationDialog"};
    }

    /// A file of the kind that is asked for, so that what comes next is seen.
    [[nodiscard]] QString fileFor(const FileRequest &request) const
    {
        const QString filters = request.nameFilters.join(' ');
        if (request.acceptMode == QFileDialog::AcceptSave || filters.contains("*.quenmora"))
            return {};
        if (filters.contains("*.png"))
            return m_folder("1.png", readFile(EXAMPLES_FOLDER "/pictures/sprites.png"));
        return m_folder(filters.contains("*.spr") ? "2.spr" : "3.ch8", QByteArray(768, '\1'));
    }

    /// Triggers every command once, and looks at what that opens.
    void useAll(const char *place)
    {
        QList<QPointer<QMenu>> menus;
        for (QMenu *menu : m_window->findChildren<QMenu *>())
            menus.append(menu);
        for (const QPointer<QMenu> &menu : std::as_const(menus)) {
            if (!menu)
                continue;
            emit menu->aboutToShow();
            const QList<QAction *> actions = menu->actions();
            for (const QPointer<QAction> action : actions) {
                if (!action || !action->isEnabled() || action->menu() || action->isSeparator()
                    || m_used.contains(action)
                    || action == m_window->menus()->helpMenu()->sampleAction() // whose assets have English names
                    || action->menuRole() == QAction::QuitRole
                    || action->shortcuts() == QKeySequence::keyBindings(QKeySequence::Close))
                    continue;
                m_used.insert(action);
                const QByteArray name = QByteArray(place) + '-' + QByteArray::number(m_used.size());
                QTimer::singleShot(0, this, [this, name] { look(name.constData(), false); });
                action->trigger();
                look(name.constData(), false);
                if (!controller()->project())
                    return;
            }
        }
    }

    /// Notes what is wrong with whatever is shown, with the window or what it opened alone, and closes the latter.
    void look(const char *name, bool withWindow = true)
    {
        QCoreApplication::processEvents();
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QPointer<QWidget> window : windows) {
            if (!window || !window->isVisible() || isQts(window) || (window == &*m_window && !withWindow))
                continue;
            const QString place = QString::fromLatin1(name) + ' ' + window->metaObject()->className();
            fitOnScreen(*window, place);
            m_seen.insert(QString::fromLatin1(window->metaObject()->className()).section("::", -1));
            if (window->inherits("QDialog") && !window->inherits("QMessageBox") && !window->inherits("MessageDialog")
                && Guide::pageOfDialog(*window->metaObject()).isEmpty())
                m_unguided.insert(QString::fromLatin1(window->metaObject()->className()));
            note(*window, place);
            picture(*window, place);
        }
        for (const QPointer<QWidget> window : windows) {
            if (window && window != &*m_window && window->isVisible() && !window->inherits("QTipLabel"))
                window->close();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Makes a window as small as the screen is, as desktops do, and notes what it cannot do without.
    void fitOnScreen(QWidget &window, const QString &place)
    {
        if (window.inherits("QMenu"))
            return; // menus scroll
        const QSize room = window.screen()->availableSize() - Frame;
        const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
        if (const QSize missing = least.expandedTo(room) - room; !missing.isNull())
            m_cut.append(QStringLiteral("%1 x %2 pixels beyond the screen: %3")
                             .arg(missing.width())
                             .arg(missing.height())
                             .arg(place));
        window.resize(window.size().boundedTo(room));
        QCoreApplication::processEvents();
    }

    void note(QWidget &window, const QString &place)
    {
        static const QRegularExpression word(QStringLiteral("[A-Za-z]{2,}"));
        static const QRegularExpression fileName(QStringLiteral("[^ ]+[.][a-z]{3}"));
        QList<QWidget *> widgets = window.findChildren<QWidget *>();
        widgets.append(&window);
        for (QWidget *widget : std::as_const(widgets)) {
            if (isQts(widget))
                continue;
            const QString where = QString::fromLatin1(widget->metaObject()->className()) + " in " + place;
            for (const QString &text : textsOf(*widget)) {
                QString rest = PseudoLanguage::untranslated(QString(text).remove(fileName));
                for (const QString &name : std::as_const(m_names))
                    rest.remove(name);
                if (rest.contains(word))
                    m_untranslated.append(text + " (" + where + ')');
            }
            if (widget->isVisible() && widget->window() == &window && isNameless(*widget))
                m_nameless.append(where);
            if (const int missing = widget->isVisible() ? missingWidth(*widget) : 0; missing > 0)
                m_cut.append(QStringLiteral("%1 pixels: %2 %3 (%4)")
                                 .arg(missing)
                                 .arg(widget->property("text").toString() + widget->property("currentText").toString(),
                                      widget->objectName(), where));
        }
    }

    void picture(QWidget &window, const QString &place)
    {
        const QString folder = qEnvironmentVariable("QUENMORA_PICTURES");
        if (!folder.isEmpty())
            window.grab().save(QStringLiteral("%1/%2-%3.png")
                                   .arg(folder)
                                   .arg(++m_pictures, 3, 10, QChar(u'0'))
                                   .arg(place.section(':', -1)));
    }

    std::optional<PseudoLanguage> m_pseudo;
    QSet<const QAction *> m_used;
    QSet<QString> m_seen; ///< classes of windows, without namespaces
    QSet<QString> m_unguided{}; ///< classes of dialogs that no page of the guide is about
    QStringList m_names{"Quenmora"};
    int m_pictures = 0;
    QStringList m_untranslated; ///< with where they are
    QStringList m_cut;
    QStringList m_nameless; ///< what takes the keyboard or a click and has no name
};

QUENMORA_TEST_MAIN(TestLanguages)
#include "tst_languages.moc"
