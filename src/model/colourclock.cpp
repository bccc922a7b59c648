#include "model/colourclock.h"

#include "model/colourcycle.h"
#include "model/projectextras.h"

#include <QTimer>

#include <numeric>

ColourClock::ColourClock(QObject *parent) : QObject(parent), m_timer(new QTimer(this))
{
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer, &QTimer::timeout, this, [this] { advance(m_timer->interval() / ColourCycle::FrameTime); });
}

void ColourClock::setProject(const QPointer<Project> &project)
{
    if (m_project) {
        m_project->disconnect(this);
        m_project->extras()->disconnect(this);
    }
    m_project = project;
    m_frame = 0;
    if (m_project) {
        connect(m_project, &Project::paletteCreated, this, &ColourClock::update);
        connect(m_project->extras(), &ProjectExtras::sectionChanged, this, [this](const QString &name) {
            if (name == ColourCycles::Section)
                update();
        });
    }
    update();
}

void ColourClock::setRunning(bool running)
{
    m_running = running;
    m_frame = 0;
    update();
}

void ColourClock::setPaused(bool paused)
{
    m_paused = paused;
    update();
}

bool ColourClock::isTicking() const
{
    return m_timer->isActive();
}

void ColourClock::advance(int frames)
{
    m_frame += frames;
    show();
}

void ColourClock::update()
{
    int frames = 0;
    if (m_project && m_running && !m_paused) {
        for (const QPointer<Palette> &palette : m_project->palettes())
            frames =
                std::gcd(frames, ColourCycles::commonFrames(ColourCycles::of(*m_project->extras(), palette->id())));
    }
    const int interval = frames * ColourCycle::FrameTime;
    if (interval == 0)
        m_timer->stop();
    else if (!m_timer->isActive() || m_timer->interval() != interval)
        m_timer->start(interval);
    show();
}

void ColourClock::show() const
{
    if (!m_project)
        return;
    for (const QPointer<Palette> &palette : m_project->palettes()) {
        const auto cycles = m_running ? ColourCycles::of(*m_project->extras(), palette->id()) : ColourCycles::List();
        palette->showEntries(ColourCycles::shownEntries(cycles, m_frame));
    }
}
