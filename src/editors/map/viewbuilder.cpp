#include "editors/map/viewbuilder.h"

#include "editors/map/mapanimator.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapexport.h"
#include "editors/map/mapgrid.h"
#include "editors/map/maptoolpalette.h"
#include "editors/map/resizedialog.h"
#include "editors/map/spritepropertiespopover.h"
#include "ui/commands.h"
#include "ui/scrollbar.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenu>
#include <QSplitter>
#include <QToolButton>

namespace MapEditor {

namespace {

/// Makes an action a command of the map editor, with keys that count while the keyboard is in the view.
void addCommand(View *view, QAction *action, const char *name)
{
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    view->addAction(Commands::add(action, QLatin1String("mapEditor.") + QLatin1String(name)));
}

} // namespace

void ViewBuilder::build()
{
    makeParts();
    layOut();
    addKeys();
    addSizeCommands();
    connectGrid();
    connectScrollBars();
    connectPopover();
    connectExport();
}

void ViewBuilder::makeParts()
{
    m_view.m_grid = new MapGrid;
    m_view.m_horizontalBar = new ScrollBar(Qt::Horizontal);
    m_view.m_verticalBar = new ScrollBar(Qt::Vertical);
    m_view.m_toolPalette = new MapToolPalette;
    m_view.m_animator = new MapAnimator(&m_view);
    m_view.m_popover = new SpritePropertiesPopover(&m_view);
    m_view.m_resizeDialog = new ResizeDialog(&m_view);
    m_view.m_export = new MapExport(m_view.m_map, &m_view);
}

void ViewBuilder::layOut()
{
    auto *scrolled = new QGridLayout;
    scrolled->setSpacing(0);
    scrolled->addWidget(m_view.m_grid, 0, 0);
    scrolled->addWidget(m_view.m_verticalBar, 0, 1);
    scrolled->addWidget(m_view.m_horizontalBar, 1, 0);
    scrolled->addWidget(makeMapMenu(), 1, 1);
    scrolled->setRowStretch(0, 1);
    scrolled->setColumnStretch(0, 1);

    auto *page = new QWidget;
    // before the grid in the order of Tab: behind it, it would hand the keyboard back for ever
    m_view.m_toolPalette->setParent(page);
    auto *row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    row->addLayout(scrolled, 10000);
    row->addWidget(m_view.m_toolPalette, 0, Qt::AlignTop);

    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(page);
    splitter->setStretchFactor(0, 1000);
    auto *layout = new QVBoxLayout(&m_view);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(splitter, 1);

    m_view.m_toolPalette->setFocusProxy(m_view.m_grid);
    m_view.setFocusProxy(m_view.m_grid);
}

/// What is done with the map as a whole, in the corner between the scroll bars.
QToolButton *ViewBuilder::makeMapMenu()
{
    View *view = &m_view;
    auto *button = new QToolButton;
    const int extent = m_view.m_horizontalBar->sizeHint().height();
    button->setFixedSize(extent, extent);
    button->setIcon(themedIcon(QStringLiteral(":/More")));
    button->setIconSize({extent - 4, extent - 4});
    button->setAutoRaise(true);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setToolTip(View::tr("Resize or export the map"));
    button->setAccessibleName(button->toolTip());
    button->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    auto *menu = new QMenu(button);
    const auto add = [menu, view](const char *name, const QString &icon, const QString &text,
                                  Quenmora::Ui::ToolButton request) {
        QAction *action = menu->addAction(themedIcon(icon), text);
        QObject::connect(action, &QAction::triggered, view, [view, request] { view->toolPaletteClicked(request); });
        addCommand(view, action, name);
    };
    add("resize", QStringLiteral(":/Resize"), View::tr("Resize Map…"), Quenmora::Ui::Resize);
    add("exportToFolder", QStringLiteral(":/Export"), View::tr("Export to Folder…"), Quenmora::Ui::Save);
    button->setMenu(menu);
    return button;
}

void ViewBuilder::addKeys()
{
    m_view.addActions(m_view.m_toolPalette->actions());
    m_view.addActions(m_view.m_grid->commands());
    const auto add = [this](const char *name, const QString &text, const QList<QKeySequence> &shortcuts, auto handler) {
        auto *action = new QAction(text, &m_view);
        action->setShortcuts(shortcuts);
        QObject::connect(action, &QAction::triggered, &m_view, handler);
        addCommand(&m_view, action, name);
    };
    add("cancel", View::tr("Cancel"), {Qt::Key_Escape}, &View::cancel);
    QList<QKeySequence> deletion = QKeySequence::keyBindings(QKeySequence::Delete);
    if (!deletion.contains(QKeySequence(Qt::Key_Backspace)))
        deletion.append(Qt::Key_Backspace);
    add("delete", View::tr("Delete"), deletion, &View::deleteUnderPointer);
}

/// The buttons at the ends of the scroll bars, from the beginning to the end.
void ViewBuilder::addSizeCommands()
{
    const auto add = [this](const ScrollBar *bar, const char *const(&names)[4]) {
        const QList<QToolButton *> buttons = bar->buttons();
        for (int i = 0; i < buttons.size(); ++i) {
            auto *action = new QAction(buttons.at(i)->toolTip(), &m_view);
            QObject::connect(action, &QAction::triggered, buttons.at(i), &QToolButton::click);
            addCommand(&m_view, action, names[i]);
        }
    };
    add(m_view.m_horizontalBar, {"addColumnLeft", "removeColumnLeft", "removeColumnRight", "addColumnRight"});
    add(m_view.m_verticalBar, {"addRowTop", "removeRowTop", "removeRowBottom", "addRowBottom"});
}

void ViewBuilder::connectGrid()
{
    View *view = &m_view;
    MapGrid *grid = m_view.m_grid;
    MapToolPalette *palette = m_view.m_toolPalette;
    QObject::connect(m_view.m_animator, &MapAnimator::framesAdvanced, view, &View::framesAdvanced);
    QObject::connect(palette, &ToolPalette::actionActivated, view,
                     qOverload<Quenmora::Ui::ToolButton, bool>(&View::toolPaletteClicked));
    QObject::connect(grid, &MapGrid::scrollDeltaChanged, view, &View::updateScrollValues);
    QObject::connect(grid, &MapGrid::scrollPositionChanged, view, &View::updateScrollBars);
    QObject::connect(grid, &MapGrid::mapResized, view, &View::mapSizeChanged);
    QObject::connect(grid, &MapGrid::tilePicked, view, &View::setSelectedTile);
    QObject::connect(grid, &MapGrid::modeChanged, palette, &ToolPalette::setMode);
    QObject::connect(grid, &MapGrid::modeChanged, view, &View::modeChanged);
    QObject::connect(grid, &MapGrid::createMapFromSelection, view, &View::createMapFromSelection);
    QObject::connect(grid, &MapGrid::animationPicked, view, &View::animationPicked);
    QObject::connect(m_view.m_resizeDialog, &QDialog::accepted, view, &View::resizeMap);
}

void ViewBuilder::connectScrollBars()
{
    View *view = &m_view;
    const ScrollBar *vertical = m_view.m_verticalBar;
    QObject::connect(vertical, &ScrollBar::valueChanged, m_view.m_grid, &MapGrid::setVerticalScrollPosition);
    QObject::connect(vertical, &ScrollBar::add, view, &View::addRow);
    QObject::connect(vertical, &ScrollBar::remove, view, &View::removeRow);
    const ScrollBar *horizontal = m_view.m_horizontalBar;
    QObject::connect(horizontal, &ScrollBar::valueChanged, m_view.m_grid, &MapGrid::setHorizontalScrollPosition);
    QObject::connect(horizontal, &ScrollBar::add, view, &View::addColumn);
    QObject::connect(horizontal, &ScrollBar::remove, view, &View::removeColumn);
}

void ViewBuilder::connectPopover()
{
    QObject::connect(m_view.m_grid, &MapGrid::selectedSpriteChanged, &m_view, &View::spriteSelected);
    QObject::connect(m_view.m_grid, &MapGrid::spriteClicked, &m_view, &View::showSprite);
    QObject::connect(m_view.m_popover, &SpritePropertiesPopover::spriteEdited, m_view.m_grid,
                     &MapGrid::setSpriteProperties);
}

void ViewBuilder::connectExport()
{
    QObject::connect(m_view.m_export, &MapExport::exportTileMap, &m_view, &View::exportTileMap);
    QObject::connect(m_view.m_export, &MapExport::exportTiles, &m_view, &View::exportTiles);
    QObject::connect(m_view.m_export, &MapExport::exportTilePalette, &m_view, &View::exportTilePalette);
}

} // namespace MapEditor
