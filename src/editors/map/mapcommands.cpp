#include "editors/map/mapcommands.h"

#include "editors/map/mapeditorview.h"
#include "editors/map/paintdesk.h"
#include "ui/svgiconengine.h"

#include <QAction>

namespace MapEditor {

MapCommands::MapCommands(QObject *parent) : QObject(parent)
{
    addSeparator();
    add(QStringLiteral(":/SelectSame"), tr("Select Same &Tile"), tr("Selects all cells that show the current tile"),
        &PaintDesk::selectSameTile);
    add(QStringLiteral(":/Swap"), tr("&Replace Tile…"),
        tr("Puts one tile in place of another, in the selection, the map or all maps of the tile set"),
        &PaintDesk::showReplaceDialog)
        ->setShortcut(Qt::CTRL | Qt::Key_H);
    add(QStringLiteral(":/Terrain"), tr("Edit Terrain&s…"), tr("Marks tiles whose borders match when they are painted"),
        &PaintDesk::showTerrainDialog);
    addSeparator();
    add(QStringLiteral(":/Crosshair"), tr("Go to &Cell…"), tr("Scrolls the map to a cell"), &PaintDesk::showCellDialog)
        ->setShortcut(Qt::CTRL | Qt::Key_G);
    m_overview = add(QStringLiteral(":/Overview"), tr("&Overview"),
                     tr("Shows the whole map in a corner, with the part that is in view to drag"), nullptr);
    m_overview->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_O);
    m_overview->setCheckable(true);
    connect(m_overview, &QAction::triggered, this, [this](bool shown) {
        if (m_desk)
            m_desk->setOverviewVisible(shown);
    });
    setView(nullptr);
}

QAction *MapCommands::add(const QString &icon, const QString &text, const QString &toolTip,
                          void (PaintDesk::*command)())
{
    auto *action = new QAction(themedIcon(icon), text, this);
    action->setToolTip(toolTip);
    action->setStatusTip(toolTip);
    if (command) {
        connect(action, &QAction::triggered, this, [this, command] {
            if (m_desk)
                (m_desk->*command)();
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
