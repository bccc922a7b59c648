#pragma once

#include <QList>
#include <QMenu>

/// The "View" menu: what is shown in the main window.
class ViewMenu : public QMenu
{
    Q_OBJECT

public:
    enum class CheckableItem { ScratchEditor, StatusBar };

    explicit ViewMenu(QWidget *parent = nullptr);

    /// Checks an entry or removes its check; what it stands for follows.
    void setChecked(CheckableItem item, bool checked);
    [[nodiscard]] bool isChecked(CheckableItem item) const;

    /// Fills the "Window" submenu with the toggle actions of the docks.
    void setDockActions(const QList<QAction *> &actions);

signals:
    void toggleScratch(bool visible);
    void toggleStatusBar(bool visible);
    void resetLayout();

private:
    [[nodiscard]] QAction *actionOf(CheckableItem item) const;

    QAction *m_scratchEditor;
    QAction *m_statusBar;
    QMenu *m_windowMenu;
};
