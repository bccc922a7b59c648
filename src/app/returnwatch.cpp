#include "app/returnwatch.h"

#include <QApplication>

ReturnWatch::ReturnWatch(QObject *parent) : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(Pause);
    connect(&m_pause, &QTimer::timeout, this, &ReturnWatch::announce);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &ReturnWatch::onFocusWindowChanged);
}

void ReturnWatch::onFocusWindowChanged(const QWindow *window)
{
    if (window)
        m_pause.start();
    else
        m_pause.stop();
}

void ReturnWatch::announce()
{
    if (QApplication::activeModalWidget())
        return;
    if (QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activePopupWidget())
        m_pause.start();
    else
        emit returned();
}
