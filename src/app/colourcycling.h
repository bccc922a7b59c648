#pragma once

#include "model/colourclock.h"

#include <QObject>

class PaletteWindow;
class ProjectController;
class QAction;
class QMainWindow;
class QMenu;

/// The switch of the clock by which palettes' colours go round, which stands still while the main window is not seen.
class ColourCycling : public QObject
{
    Q_OBJECT

public:
    explicit ColourCycling(QMainWindow *window);

    /// Lets the clock follow the open project, and offers its switch at the end of a menu and in the palette dock.
    void serve(const ProjectController &controller, QMenu &menu, PaletteWindow &dock);

    /// Off at every start.
    [[nodiscard]] QAction *action() const { return m_action; }
    [[nodiscard]] ColourClock *clock() { return &m_clock; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QMainWindow *m_window;
    QAction *m_action;
    ColourClock m_clock;
};
