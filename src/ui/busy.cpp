#include "ui/busy.h"

#include <QGuiApplication>
#include <QStatusBar>

Busy::Busy(QWidget *window, const QString &text, qint64 bytes)
    : m_told(bytes >= Much)
    , m_text(text)
    , m_statusBar(window ? window->window()->findChild<QStatusBar *>() : nullptr)
{
    if (!m_told)
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (m_statusBar) {
        m_statusBar->showMessage(m_text);
        m_statusBar->repaint();
    }
}

Busy::~Busy()
{
    if (!m_told)
        return;
    QGuiApplication::restoreOverrideCursor();
    if (m_statusBar && m_statusBar->currentMessage() == m_text)
        m_statusBar->clearMessage();
}
