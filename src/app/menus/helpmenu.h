#pragma once

#include <QMenu>

/// The "Help" menu.
class HelpMenu : public QMenu
{
    Q_OBJECT

public:
    explicit HelpMenu(QWidget *parent = nullptr);

signals:
    void checkForUpdates();
    void displayAbout();
    void showCommandPalette();
    void showShortcuts();
};
