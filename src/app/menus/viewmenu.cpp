#include "app/menus/viewmenu.h"

#include "ui/commands.h"

ViewMenu::ViewMenu(QWidget *parent) : QMenu(tr("&View"), parent)
{
    m_scratchEditor = Commands::add(addAction(tr("S&cratch Image Editor")), QStringLiteral("view.scratchEditor"));
    m_scratchEditor->setCheckable(true);
    connect(m_scratchEditor, &QAction::toggled, this, &ViewMenu::toggleScratch);
    m_statusBar = Commands::add(addAction(tr("&Status Bar")), QStringLiteral("view.statusBar"));
    m_statusBar->setCheckable(true);
    m_statusBar->setChecked(true);
    connect(m_statusBar, &QAction::toggled, this, &ViewMenu::toggleStatusBar);
    QAction *reset = Commands::add(addAction(tr("&Reset Layout")), QStringLiteral("view.resetLayout"));
    connect(reset, &QAction::triggered, this, &ViewMenu::resetLayout);
    m_windowMenu = addMenu(tr("&Window"));
}

QAction *ViewMenu::actionOf(CheckableItem item) const
{
    return item == CheckableItem::ScratchEditor ? m_scratchEditor : m_statusBar;
}

void ViewMenu::setChecked(CheckableItem item, bool checked)
{
    actionOf(item)->setChecked(checked);
}

bool ViewMenu::isChecked(CheckableItem item) const
{
    return actionOf(item)->isChecked();
}

void ViewMenu::setDockActions(const QList<QAction *> &actions)
{
    m_windowMenu->clear();
    m_windowMenu->addActions(actions);
}
