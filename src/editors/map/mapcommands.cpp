#include "editors/map/mapcommands.h"

#include "editors/map/mapeditorview.h"
#include "editors/map/paintdesk.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"

#include <QAction>

namespace MapEditor {

MapCommands::MapCommands(QObject *parent) : QObject(parent)
{
    addSeparator();
    add({.name = "map.selectSameTile", .icon = ":/SelectSame", .run = &PaintDesk::selectSameTile},
        tr("Select Same &Tile"), tr("Selects all cells that show the current tile"));
    add({.name = "map.replaceTile",
         .icon = ":/Swap",
         .keys = Qt::CTRL | Qt::Key_H,
         .run = &PaintDesk::showReplaceDialog},
        tr("&Replace Tile…"),
        tr("Puts one tile in place of another, in the selection, the map or all maps of the tile set"));
    add({.name = "map.editTerrains", .icon = ":/Terrain", .run = &PaintDesk::showTerrainDialog}, tr("Edit Terrain&s…"),
        tr("Marks tiles whose borders match when they are painted"));
    addSeparator();
    add({.name = "map.goToCell",
         .icon = ":/Crosshair",
         .keys = Qt::CTRL | Qt::Key_G,
         .run = &PaintDesk::showCellDialog},
        tr("Go to &Cell…"), tr("Scrolls the map to a cell"));
    m_overview = add({.name = "map.overview", .icon = ":/Overview", .keys = Qt::CTRL | Qt::SHIFT | Qt::Key_O},
                     tr("&Overview"), tr("Shows the whole map in a corner, with the part that is in view to drag"));
    m_overview->setCheckable(true);
    connect(m_overview, &QAction::triggered, this, [this](bool shown) {
        if (m_desk)
            m_desk->setOverviewVisible(shown);
    });
    setView(nullptr);
}

QAction *MapCommands::add(const Entry &entry, const QString &text, const QString &toolTip)
{
    auto *action = new QAction(themedIcon(QLatin1String(entry.icon)), text, this);
    action->setShortcut(entry.keys);
    action->setToolTip(toolTip);
    action->setStatusTip(toolTip);
    Commands::add(action, QLatin1String(entry.name));
    if (entry.run) {
        connect(action, &QAction::triggered, this, [this, run = entry.run] {
            if (m_desk)
                (m_desk->*run)();
        });
    }
    m_actions.append(action);
    return action;
}

void MapCommands::addSeparator()
{
    auto *separator = new QAction(this);
    separator->setSeparator(true);
    m_actions.append(separator);
}

void MapCommands::setView(const QPointer<View> &view)
{
    m_desk = view ? view->paintDesk() : nullptr;
    for (QAction *action : m_actions)
        action->setEnabled(m_desk);
    m_overview->setChecked(m_desk && m_desk->isOverviewVisible());
}

} // namespace MapEditor
