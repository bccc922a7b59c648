#pragma once

#include <QHash>
#include <QObject>
#include <QSize>

class DockWidget;
class QDockWidget;
class QMainWindow;

/// Gives docks the size back that a smaller window took from them, when there is room for it again. By itself a
/// main window gives all new room to its middle, and its docks stay as narrow as they once had to be.
class DockSizes : public QObject
{
    Q_OBJECT

public:
    DockSizes(QMainWindow *window, const QList<DockWidget *> &docks);

    /// The sizes that docks have now are the wanted ones.
    void keep();
    void want(QDockWidget *dock, const QSize &size) { m_wanted[dock] = size; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void giveBack(Qt::Orientation orientation);

    QMainWindow *m_window;
    QSize m_windowSize; ///< for which the docks were laid out last
    QHash<QDockWidget *, QSize> m_wanted;
};
