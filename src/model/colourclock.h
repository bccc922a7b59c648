#pragma once

#include "model/palette.h"
#include "model/project.h"

#include <QObject>
#include <QPointer>

class QTimer;

/// The one clock by which the colours of a project's palettes go round in all views.
///
/// It tells palettes whose colours their entries show, which changes nothing but how things are drawn. While it
/// is switched off, or no palette has ranges, no timer runs.
class ColourClock : public QObject
{
    Q_OBJECT

public:
    explicit ColourClock(QObject *parent = nullptr);

    void setProject(const QPointer<Project> &project);

    /// Off at first. Switched off, entries show their own colours again.
    void setRunning(bool running);
    [[nodiscard]] bool isRunning() const { return m_running; }
    /// Lets colours stand where they are, as long as nobody sees them.
    void setPaused(bool paused);
    [[nodiscard]] bool isTicking() const;

    /// Lets frames of the machine's screen pass.
    void advance(int frames);

private:
    /// Looks at the ranges anew.
    void update();
    void show() const;

    QPointer<Project> m_project;
    QTimer *m_timer;
    qint64 m_frame = 0;
    bool m_running = false;
    bool m_paused = false;
};
