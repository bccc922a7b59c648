#include "app/docksizes.h"

#include "ui/dockwidget.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QResizeEvent>

#include <utility>

DockSizes::DockSizes(QMainWindow *window, const QList<DockWidget *> &docks)
    : QObject(window)
    , m_window(window)
    , m_windowSize(window->size())
{
    window->installEventFilter(this);
    for (DockWidget *dock : docks) {
        dock->installEventFilter(this);
        m_wanted.insert(dock, {});
    }
}

void DockSizes::keep()
{
    for (auto wanted = m_wanted.begin(); wanted != m_wanted.end(); ++wanted)
        *wanted = wanted.key()->size();
}

bool DockSizes::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Resize)
        return false;
    if (watched == m_window) {
        // the docks have been laid out for this size by now
        const QSize before = std::exchange(m_windowSize, m_window->size());
        if (m_windowSize.width() > before.width())
            giveBack(Qt::Horizontal);
        if (m_windowSize.height() > before.height())
            giveBack(Qt::Vertical);
    } else if (m_window->size() == m_windowSize && QGuiApplication::mouseButtons() & Qt::LeftButton) {
        auto *dock = static_cast<QDockWidget *>(watched); // a person moves its edge
        m_wanted[dock] = dock->size();
    }
    return false;
}

void DockSizes::giveBack(Qt::Orientation orientation)
{
    const Qt::DockWidgetAreas areas = orientation == Qt::Horizontal ? Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea
                                                                    : Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea;
    const auto extent = [orientation](const QSize &size) {
        return orientation == Qt::Horizontal ? size.width() : size.height();
    };
    QList<QDockWidget *> squeezed;
    QList<int> sizes;
    for (auto entry = m_wanted.cbegin(); entry != m_wanted.cend(); ++entry) {
        QDockWidget *dock = entry.key();
        const int wanted = extent(*entry);
        if (dock->isFloating() || dock->visibleRegion().isEmpty() || !areas.testFlag(m_window->dockWidgetArea(dock))
            || extent(dock->size()) >= wanted)
            continue;
        squeezed.append(dock);
        sizes.append(wanted);
    }
    if (!squeezed.isEmpty())
        m_window->resizeDocks(squeezed, sizes, orientation);
}
