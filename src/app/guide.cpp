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

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <QVariant>

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

QString Guide::pageInFront() const
{
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
