#include "ui/repeatedpress.h"

#include <QAbstractItemView>
#include <QKeyEvent>

RepeatedPress::RepeatedPress(QAbstractItemView *view) : QObject(view), m_view(view)
{
    view->viewport()->installEventFilter(this);
    view->installEventFilter(this);
    connect(view, &QAbstractItemView::pressed, this, [this](const QModelIndex &index) {
        if (index.isValid() && index == m_before)
            emit pressedAgain(index);
    });
}

bool RepeatedPress::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress)
        m_before = m_view->currentIndex();
    if (event->type() == QEvent::KeyPress && watched == m_view && m_view->currentIndex().isValid()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
            emit pressedAgain(m_view->currentIndex());
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
