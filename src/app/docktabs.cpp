#include "app/docktabs.h"

#include "ui/dockwidget.h"

#include <QEvent>
#include <QMainWindow>
#include <QTabBar>

#include <algorithm>

DockTabs::DockTabs(QMainWindow *window, const QList<DockWidget *> &docks)
    : QObject(window)
    , m_window(window)
    , m_docks(docks)
{
    window->installEventFilter(this);
}

bool DockTabs::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) // as whenever a tab comes or changes
        setIcons();
    return false;
}

void DockTabs::setIcons()
{
    const QList<QTabBar *> bars = m_window->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTabBar *bar : bars) {
        if (bar->accessibleName().isEmpty()) // a new one; each name is told
            bar->setAccessibleName(tr("Docks"));
        for (int tab = 0; tab < bar->count(); ++tab) {
            // a tab is known by the address of its dock
            const auto dock = std::find_if(m_docks.cbegin(), m_docks.cend(), [&](const DockWidget *known) {
                return quintptr(static_cast<const QDockWidget *>(known)) == bar->tabData(tab).toULongLong();
            });
            if (dock != m_docks.cend() && bar->tabIcon(tab).cacheKey() != (*dock)->windowIcon().cacheKey())
                bar->setTabIcon(tab, (*dock)->windowIcon());
        }
    }
}
