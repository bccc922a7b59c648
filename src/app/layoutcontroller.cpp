#include "app/layoutcontroller.h"

#include "app/appstate.h"
#include "app/docktabs.h"
#include "app/menus/viewmenu.h"
#include "app/projecttree/projectwindow.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilepickertool.h"
#include "editors/canvas/tilewindow.h"
#include "editors/map/blockselectorwindow.h"
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mapspriteswindow.h"
#include "editors/palette/palettewindow.h"
#include "ui/commands.h"
#include "ui/focusring.h"
#include "ui/keycursor.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace {

constexpr int StateVersion = 0;

// The sizes of a new window's docks, in pixels; a dock that needs more gets it
constexpr int SideWidth = 215;
constexpr int EditorWidth = 320;
constexpr int PickerHeight = 150;

/// Where the keyboard goes in a pane: where something is drawn, else to the first widget that takes it; null for none.
QWidget *firstFor(const QWidget *pane)
{
    const auto takes = [](const QWidget *widget) {
        return widget->isVisible() && widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus;
    };
    const QList<KeyCursor *> cursors = pane->findChildren<KeyCursor *>();
    for (const KeyCursor *cursor : cursors) {
        if (takes(cursor->widget()))
            return cursor->widget();
    }
    const QList<QWidget *> widgets = pane->findChildren<QWidget *>();
    const auto first = std::ranges::find_if(widgets, takes);
    return first == widgets.end() ? nullptr : *first;
}

/// Gives the keyboard to the first widget in a pane that takes it.
bool takeKeyboard(const QWidget *pane)
{
    QWidget *first = firstFor(pane);
    if (first)
        first->setFocus(Qt::ShortcutFocusReason);
    return first;
}

} // namespace

LayoutController::LayoutController(QMainWindow *window, const DocumentViews &views, ViewMenu *viewMenu)
    : QObject(window)
    , m_window(window)
    , m_views(views)
    , m_sizes(new DockSizes(window, docks()))
{
    QList<QAction *> actions;
    for (const DockWidget *dock : docks())
        actions.append(Commands::add(dock->toggleViewAction(), QStringLiteral("view.window.") + dock->objectName()));
    viewMenu->setDockActions(actions);
    connect(viewMenu, &ViewMenu::resetLayout, this, &LayoutController::resetLayout);
    addPaneKeys();
    // those that are titled with the name of what they edit
    const auto mark = [](DockWidget *dock, ProjectTree::ProjectNode node) {
        dock->setWindowIcon(ProjectTree::nodeIcon(node));
        return dock;
    };
    new DockTabs(window,
                 {mark(m_views.palette, ProjectTree::PaletteNode), mark(m_views.tileEditor, ProjectTree::TileSetNode),
                  mark(m_views.spriteEditor, ProjectTree::SpriteBankNode)});
}

void LayoutController::addPaneKeys()
{
    using Step = void (LayoutController::*)(int);
    const auto add = [this](const QString &name, const QString &text, const QKeySequence &keys, Step take, int step) {
        auto *action = new QAction(text, m_window);
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, [this, take, step] { (this->*take)(step); });
        m_window->addAction(Commands::add(action, name));
    };
    add(QStringLiteral("window.nextPane"), tr("Next Dock"), Qt::Key_F6, &LayoutController::focusPane, 1);
    add(QStringLiteral("window.previousPane"), tr("Previous Dock"), Qt::SHIFT | Qt::Key_F6,
        &LayoutController::focusPane, -1);
    add(QStringLiteral("window.nextBehind"), tr("Next Dock Behind"), Qt::CTRL | Qt::Key_F6,
        &LayoutController::raiseDock, 1);
    add(QStringLiteral("window.previousBehind"), tr("Previous Dock Behind"), Qt::CTRL | Qt::SHIFT | Qt::Key_F6,
        &LayoutController::raiseDock, -1);
    new FocusRing(m_window);
}

void LayoutController::raiseDock(int step)
{
    const QWidget *focus = QApplication::focusWidget();
    const QList<DockWidget *> all = docks();
    const auto current =
        std::ranges::find_if(all, [focus](const DockWidget *dock) { return dock->isAncestorOf(focus); });
    if (current == all.end())
        return;
    const QList<QDockWidget *> beside = m_window->tabifiedDockWidgets(*current);
    const qsizetype index = std::distance(all.begin(), current);
    for (qsizetype tried = 1; tried < all.size(); ++tried) {
        DockWidget *dock = all.at((index + step * tried + all.size()) % all.size());
        if (!beside.contains(dock) || !firstFor(dock))
            continue;
        dock->raise();
        takeKeyboard(dock);
        return;
    }
}

void LayoutController::focusPane(int step)
{
    QList<QWidget *> panes{m_window->centralWidget()};
    for (DockWidget *dock : docks()) {
        if (!dock->visibleRegion().isEmpty()) // neither closed nor behind another one
            panes.append(dock);
    }
    if (m_views.mapToolBar->isVisible() && m_views.mapToolBar->isEnabled())
        panes.append(m_views.mapToolBar);
    const QWidget *focus = QApplication::focusWidget();
    const auto current =
        std::find_if(panes.cbegin(), panes.cend(), [focus](const QWidget *pane) { return pane->isAncestorOf(focus); });
    const auto index = current == panes.cend() ? 0 : std::distance(panes.cbegin(), current);
    for (qsizetype tried = 1; tried <= panes.size(); ++tried) {
        if (takeKeyboard(panes.at((index + step * tried + panes.size()) % panes.size())))
            return;
    }
}

QList<DockWidget *> LayoutController::docks() const
{
    return {m_views.project,    m_views.palette,    m_views.tileEditor, m_views.spriteEditor,
            m_views.tilePicker, m_views.mapObjects, m_views.mapSprites};
}

void LayoutController::resetLayout()
{
    m_window->setTabShape(QTabWidget::Rounded);
    m_window->setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::South);
    // the editors at the sides are tall, the tile picker is low
    m_window->setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    m_window->setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    for (DockWidget *dock : docks()) {
        if (dock != m_views.tilePicker)
            m_window->removeDockWidget(dock);
    }

    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_views.project);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_views.mapObjects);
    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_views.mapSprites);
    m_window->tabifyDockWidget(m_views.mapObjects, m_views.mapSprites);

    m_window->addDockWidget(Qt::RightDockWidgetArea, m_views.tileEditor);
    m_window->addDockWidget(Qt::RightDockWidgetArea, m_views.palette);
    m_window->addDockWidget(Qt::RightDockWidgetArea, m_views.spriteEditor);
    m_window->tabifyDockWidget(m_views.palette, m_views.tileEditor);
    m_window->tabifyDockWidget(m_views.palette, m_views.spriteEditor);

    m_window->addDockWidget(Qt::BottomDockWidgetArea, m_views.tilePicker);

    for (DockWidget *dock : docks()) {
        dock->setFloating(false);
        dock->show();
    }
    m_window->resizeDocks({m_views.project, m_views.palette}, {SideWidth, EditorWidth}, Qt::Horizontal);
    m_window->resizeDocks({m_views.tilePicker}, {PickerHeight}, Qt::Vertical);
    m_window->resizeDocks({m_views.project, m_views.mapObjects}, {3, 2}, Qt::Vertical); // of the height that there is
    for (DockWidget *dock : docks()) {
        const bool isEditor = m_window->dockWidgetArea(dock) == Qt::RightDockWidgetArea;
        m_sizes->want(dock, {isEditor ? EditorWidth : SideWidth, PickerHeight});
    }
    m_views.mapObjects->raise();
    m_views.palette->raise();
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
    if (m_window->restoreState(state.windowState(), StateVersion))
        m_sizes->keep();
    m_window->restoreGeometry(state.windowGeometry());
}
