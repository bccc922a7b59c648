#include "app/menus/helpmenu.h"

#include "ui/svgiconengine.h"

HelpMenu::HelpMenu(QWidget *parent) : QMenu(tr("&Help"), parent)
{
    QAction *update = addAction(themedIcon(QStringLiteral(":/Update")), tr("&Check for Updates…"));
    update->setMenuRole(QAction::NoRole);
    connect(update, &QAction::triggered, this, &HelpMenu::checkForUpdates);
    QAction *about = addAction(themedIcon(QStringLiteral(":/About")), tr("&About"));
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &HelpMenu::displayAbout);
}
