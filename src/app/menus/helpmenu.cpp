#include "app/menus/helpmenu.h"

#include "ui/commands.h"
#include "ui/svgiconengine.h"

HelpMenu::HelpMenu(QWidget *parent) : QMenu(tr("&Help"), parent)
{
    QAction *update = addAction(themedIcon(QStringLiteral(":/Update")), tr("&Check for Updates…"));
    update->setMenuRole(QAction::NoRole);
    Commands::add(update, QStringLiteral("help.checkForUpdates"));
    connect(update, &QAction::triggered, this, &HelpMenu::checkForUpdates);
    QAction *about = addAction(themedIcon(QStringLiteral(":/About")), tr("&About"));
    about->setMenuRole(QAction::AboutRole);
    Commands::add(about, QStringLiteral("help.about"));
    connect(about, &QAction::triggered, this, &HelpMenu::displayAbout);
    addSeparator();
    QAction *palette = addAction(themedIcon(QStringLiteral(":/Search")), tr("Command &Palette…"));
    palette->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_P);
    palette->setShortcutContext(Qt::ApplicationShortcut); // floating docks are windows of their own
    Commands::add(palette, QStringLiteral("help.commandPalette"));
    connect(palette, &QAction::triggered, this, &HelpMenu::showCommandPalette);
    QAction *shortcuts = addAction(themedIcon(QStringLiteral(":/Preferences")), tr("&Keyboard Shortcuts…"));
    Commands::add(shortcuts, QStringLiteral("help.keyboardShortcuts"));
    connect(shortcuts, &QAction::triggered, this, &HelpMenu::showShortcuts);
}
