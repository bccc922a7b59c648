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
    addSeparator();
    setToolTipsVisible(true);
    m_guide = addAction(themedIcon(QStringLiteral(":/Guide")), tr("&Guide"));
    m_guide->setToolTip(tr("Opens the guide in your browser, at the page about what you work on"));
    m_guide->setShortcut(QKeySequence::HelpContents);
    m_guide->setShortcutContext(Qt::ApplicationShortcut); // as above
    Commands::add(m_guide, QStringLiteral("help.guide"));
    m_sample = addAction(themedIcon(QStringLiteral(":/SampleProject")), tr("&Sample Project"));
    m_sample->setToolTip(tr("Opens a small game to look at and to play with; saving makes a copy of your own"));
    Commands::add(m_sample, QStringLiteral("help.sampleProject"));
    connect(m_sample, &QAction::triggered, this, &HelpMenu::openSample);
}
