#include "app/guide.h"

#include "app/documenttabview.h"
#include "app/installedfiles.h"
#include "app/projecttree/projectwindow.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilepickertool.h"
#include "editors/canvas/tilewindow.h"
#include "editors/map/blockselectorwindow.h"
#include "editors/map/mapspriteswindow.h"
#include "editors/palette/palettewindow.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QKeyEvent>
#include <QUrl>
#include <QVariant>

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace {

/// By what DocumentTabView says of the type of a document.
QString pageOfDocument(const QWidget *page)
{
    const QVariant type = page ? page->property("document_type") : QVariant();
    switch (type.isValid() ? type.toInt() : -1) {
    case 0:
        return QStringLiteral("maps");
    case 1:
    case 2:
        return QStringLiteral("images");
    case 3:
        return QStringLiteral("sprites");
    case 4:
        return QStringLiteral("map-objects");
    default:
        return {};
    }
}

/// By the name of the class of a dialog, the page about it.
struct DialogPage
{
    std::string_view dialog;
    const char *page;
};
constexpr DialogPage DialogPages[] = {
    {"ProjectDialog", "first-level"},
    {"ExportProjectDialog", "game"},
    {"AddOutputsDialog", "game"},
    {"OutputDialog", "game"},
    {"SeveralOutputsDialog", "game"},
    {"ImageDialog", "images"},
    {"ImageEditor::ImportDialog", "images"},
    {"ImportFileDialog", "importing"},
    {"ShortcutsDialog", "keys"},
    {"TileAnimationDialog", "map-objects"},
    {"MapDialog", "maps"},
    {"ImportPictureDialog", "maps"},
    {"MapEditor::ExportDialog", "maps"},
    {"MapEditor::ResizeDialog", "maps"},
    {"MapEditor::CellDialog", "painting-maps"},
    {"MapEditor::ReplaceTileDialog", "painting-maps"},
    {"MapEditor::TerrainDialog", "painting-maps"},
    {"PaletteDialog", "palettes"},
    {"PaletteSelectorDialog", "palettes"},
    {"ColourCyclesDialog", "palettes"},
    {"SpriteDialog", "sprites"},
    {"SpriteEditor::ImportBinaryDialog", "sprites"},
    {"SpriteEditor::ImportImageDialog", "sprites"},
    {"TileSetDialog", "tiles"},
    {"TileEditor::ExportDialog", "tiles"},
    {"ImportZXFontDialog", "tiles"},
    {"PreferencesDialog", "window"},
    {"AboutBox", "window"},
    {"UpdateDialog", "window"},
};

} // namespace

Guide::Guide(const DocumentViews &views, QObject *parent)
    : QObject(parent)
    , m_views(views)
    , m_open([](const QUrl &url) { return QDesktopServices::openUrl(url); })
{ }

void Guide::setOpener(Opener opener)
{
    m_open = std::move(opener);
}

void Guide::serve(QAction *action)
{
    m_action = action;
    connect(action, &QAction::triggered, this, &Guide::open);
    qApp->installEventFilter(this);
}

bool Guide::eventFilter(QObject *watched, QEvent *event)
{
    // a dialog itself gets the keys that what has the keyboard in it did not want
    if (event->type() != QEvent::KeyPress || watched != QApplication::activeModalWidget() || !m_action)
        return false;
    const auto *press = static_cast<QKeyEvent *>(event); // NOLINT: its type says so
    if (!m_action->shortcuts().contains(QKeySequence(press->keyCombination())))
        return false;
    open();
    return true;
}

QString Guide::pageOfDialog(const QMetaObject &dialog)
{
    for (const QMetaObject *kind = &dialog; kind; kind = kind->superClass()) {
        const auto page = std::ranges::find(DialogPages, std::string_view(kind->className()), &DialogPage::dialog);
        if (page != std::end(DialogPages))
            return QString::fromLatin1(page->page);
    }
    return {};
}

QString Guide::pageInFront() const
{
    // a file is asked for over the dialog that wants it
    for (const QWidget *window = QApplication::activeWindow(); window; window = window->parentWidget()) {
        if (const QString page = pageOfDialog(*window->metaObject()); !page.isEmpty())
            return page;
    }
    const std::pair<const QWidget *, QString> docks[] = {
        {m_views.project, QStringLiteral("window")},   {m_views.palette, QStringLiteral("palettes")},
        {m_views.tileEditor, QStringLiteral("tiles")}, {m_views.spriteEditor, QStringLiteral("sprites")},
        {m_views.tilePicker, QStringLiteral("tiles")}, {m_views.mapObjects, QStringLiteral("map-objects")},
        {m_views.mapSprites, QStringLiteral("maps")},
    };
    const QWidget *keyboard = QApplication::focusWidget();
    for (const auto &[dock, page] : docks) {
        if (dock == keyboard || dock->isAncestorOf(keyboard))
            return page;
    }
    return pageOfDocument(m_views.tabs->currentWidget());
}

void Guide::open()
{
    const QString file = InstalledFiles::guidePage(pageInFront());
    if (file.isEmpty())
        emit failed(tr("The guide is not installed"), tr("It comes with Quenmora's package."));
    else if (!m_open(QUrl::fromLocalFile(file)))
        emit failed(tr("No program was found that shows the guide"),
                    tr("It is in this file: %1").arg(QDir::toNativeSeparators(file)));
}
