#pragma once

#include "app/docksizes.h"
#include "app/documentviews.h"

#include <QList>
#include <QObject>

class AppState;
class DockWidget;
class QMainWindow;
class ViewMenu;

/// Puts the docks into their places, and keeps and restores the places that the user gave them.
class LayoutController : public QObject
{
    Q_OBJECT

public:
    /// Hands the docks' toggle actions to the View menu.
    LayoutController(QMainWindow *window, const DocumentViews &views, ViewMenu *viewMenu);

    /// Maximizes a window that the screen cannot hold with its frame.
    void fitToScreen();

    void saveLayout(AppState &state) const;
    /// What is missing or damaged in the state leaves the window as it is.
    void restoreLayout(const AppState &state);

public slots:
    /// Puts every dock where a new window has it.
    void resetLayout();

private:
    /// Lets F6 and Shift+F6 take the keyboard from pane to pane: the tabs and every dock that is in view.
    void addPaneKeys();
    void focusPane(int step);
    /// Brings a dock to the front that is behind the one with the keyboard, and hands the keyboard over.
    void raiseDock(int step);

    /// All docks, in the order of the View menu.
    [[nodiscard]] QList<DockWidget *> docks() const;

    QMainWindow *m_window;
    DocumentViews m_views;
    DockSizes *m_sizes;
};
