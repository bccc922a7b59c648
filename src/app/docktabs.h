#pragma once

#include <QList>
#include <QObject>

class DockWidget;
class QMainWindow;

/// Puts the icons of docks on the tabs that a main window makes for docks that lie behind one another: their
/// texts, which are names of palettes and tile sets, do not say what they are.
class DockTabs : public QObject
{
    Q_OBJECT

public:
    /// The window takes it.
    DockTabs(QMainWindow *window, const QList<DockWidget *> &docks);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setIcons();

    QMainWindow *m_window;
    QList<DockWidget *> m_docks;
};
