#include "ui/repeatedpress.h"

#include <QAbstractItemView>
#include <QEvent>

RepeatedPress::RepeatedPress(QAbstractItemView *view) : QObject(view), m_view(view)
{
    view->viewport()->installEventFilter(this);
    connect(view, &QAbstractItemView::pressed, this, [this](const QModelIndex &index) {
        if (index.isValid() && index == m_before)
            emit pressedAgain(index);
    });
}

bool RepeatedPress::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress)
        m_before = m_view->currentIndex();
    return QObject::eventFilter(watched, event);
}
