#include "app/colourcycling.h"

#include "app/projectcontroller.h"
#include "editors/palette/palettewindow.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QMenu>

ColourCycling::ColourCycling(QMainWindow *window)
    : QObject(window)
    , m_window(window)
    , m_action(new QAction(themedIcon(QStringLiteral(":/Media/Loop")), tr("&Play Colour Cycles"), this))
{
    Commands::add(m_action, QStringLiteral("view.playColourCycles"));
    m_action->setCheckable(true);
    m_action->setToolTip(tr("Lets the colours of palettes' ranges go round in all views; nothing is changed"));
    m_action->setStatusTip(m_action->toolTip());
    connect(m_action, &QAction::toggled, &m_clock, &ColourClock::setRunning);
    window->installEventFilter(this);
    m_clock.setPaused(!window->isVisible());
}

void ColourCycling::serve(const ProjectController &controller, QMenu &menu, PaletteWindow &dock)
{
    connect(&controller, &ProjectController::projectOpened, &m_clock, &ColourClock::setProject);
    connect(&controller, &ProjectController::projectClosing, &m_clock, [this] { m_clock.setProject(nullptr); });
    menu.addSeparator();
    menu.addAction(m_action);
    dock.setCyclingAction(m_action);
}

bool ColourCycling::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    if (watched == m_window && (type == QEvent::Show || type == QEvent::Hide || type == QEvent::WindowStateChange))
        m_clock.setPaused(type == QEvent::Hide || m_window->isMinimized());
    return QObject::eventFilter(watched, event);
}
