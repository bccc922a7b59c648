#include "app/menus/viewmenu.h"

ViewMenu::ViewMenu(QWidget *parent) : QMenu(tr("&View"), parent)
{
    m_scratchEditor = addAction(tr("S&cratch Image Editor"));
    m_scratchEditor->setCheckable(true);
    connect(m_scratchEditor, &QAction::toggled, this, &ViewMenu::toggleScratch);
    m_statusBar = addAction(tr("&Status Bar"));
    m_statusBar->setCheckable(true);
    m_statusBar->setChecked(true);
    connect(m_statusBar, &QAction::toggled, this, &ViewMenu::toggleStatusBar);
    connect(addAction(tr("&Reset Layout")), &QAction::triggered, this, &ViewMenu::resetLayout);
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
