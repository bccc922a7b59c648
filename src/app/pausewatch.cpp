#include "app/pausewatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>

PauseWatch::PauseWatch(QObject *parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PauseWatch::isFree()
{
    return QGuiApplication::mouseButtons() == Qt::NoButton;
}

bool PauseWatch::isPaused() const
{
    return isFree() && (!m_sinceAction.isValid() || m_sinceAction.hasExpired(Rest));
}

bool PauseWatch::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
        m_sinceAction.start();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
