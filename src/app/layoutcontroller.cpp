#include "app/layoutcontroller.h"

#include "app/appstate.h"
#include "app/documentviews.h"
#include "app/menus/viewmenu.h"
#include "app/projecttree/projectwindow.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilepickertool.h"
#include "editors/canvas/tilewindow.h"
#include "editors/palette/palettewindow.h"

#include <QMainWindow>
#include <QScreen>
#include <QStyle>

namespace {

constexpr int StateVersion = 0;

// The sizes of a new window's docks, in pixels; a dock that needs more gets it
constexpr int SideWidth = 190;
constexpr int EditorWidth = 280;
constexpr int PickerHeight = 150;

} // namespace

LayoutController::LayoutController(QMainWindow *window, const DocumentViews &views, ViewMenu *viewMenu)
    : QObject(window)
    , m_window(window)
    , m_project(views.project)
    , m_palette(views.palette)
    , m_tileEditor(views.tileEditor)
    , m_spriteEditor(views.spriteEditor)
    , m_tilePicker(views.tilePicker)
    , m_mapObjects(views.mapObjects)
    , m_mapSprites(views.mapSprites)
{
    QList<QAction *> actions;
    for (const DockWidget *dock : docks())
        actions.append(dock->toggleViewAction());
    viewMenu->setDockActions(actions);
    connect(viewMenu, &ViewMenu::resetLayout, this, &LayoutController::resetLayout);
}

QList<DockWidget *> LayoutController::docks() const
{
    return {m_project, m_palette, m_tileEditor, m_spriteEditor, m_tilePicker, m_mapObjects, m_mapSprites};
}

void LayoutController::resetLayout()
{
    m_window->setTabShape(QTabWidget::Rounded);
    m_window->setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::South);
    // the editors at the sides are tall, the tile picker is low
    m_window->setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    m_window->setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    for (DockWidget *dock : {m_project, m_spriteEditor, m_tileEditor, m_palette, m_mapObjects, m_mapSprites})
        m_window->removeDockWidget(dock);

    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_project);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_mapObjects);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_mapSprites);
    m_window->tabifyDockWidget(m_mapObjects, m_mapSprites);

    m_window->addDockWidget(Qt::RightDockWidgetArea, m_tileEditor);
    m_window->addDockWidget(Qt::RightDockWidgetArea, m_palette);
    m_window->addDockWidget(Qt::RightDockWidgetArea, m_spriteEditor);
    m_window->tabifyDockWidget(m_palette, m_tileEditor);
    m_window->tabifyDockWidget(m_palette, m_spriteEditor);

    m_window->addDockWidget(Qt::BottomDockWidgetArea, m_tilePicker);

    for (DockWidget *dock : docks()) {
        dock->setFloating(false);
        dock->show();
    }
    m_window->resizeDocks({m_project, m_palette}, {SideWidth, EditorWidth}, Qt::Horizontal);
    m_window->resizeDocks({m_tilePicker}, {PickerHeight}, Qt::Vertical);
    m_mapObjects->raise();
    m_palette->raise();
}

void LayoutController::fitToScreen()
{
    const int frame = m_window->style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QSize needed = m_window->size() + QSize(0, frame);
    if (needed.boundedTo(m_window->screen()->availableSize()) != needed)
        m_window->showMaximized();
}

void LayoutController::saveLayout(AppState &state) const
{
    state.setWindowState(m_window->saveState(StateVersion));
    state.setWindowGeometry(m_window->saveGeometry());
}

void LayoutController::restoreLayout(const AppState &state)
{
    m_window->restoreState(state.windowState(), StateVersion);
    m_window->restoreGeometry(state.windowGeometry());
}
