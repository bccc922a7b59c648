#pragma once

#include "support/modeltools.h"
#include "support/testmain.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>

/// What tests of the editors do with mouse and menus.
namespace EditorInput {

/// The button of this text or tool tip, null when there is none.
inline QAbstractButton *button(const QWidget &widget, const QString &name)
{
    for (QAbstractButton *button : widget.findChildren<QAbstractButton *>()) {
        if (button->text() == name || button->toolTip() == name)
            return button;
    }
    return nullptr;
}

/// The entry of this text, its & left out; null when there is none.
inline QAction *entry(const QMenu &menu, const QString &text)
{
    for (QAction *action : menu.actions()) {
        if (action->text().remove(u'&') == text)
            return action;
    }
    return nullptr;
}

inline void trigger(const QMenu &menu, const QString &text)
{
    QAction *found = entry(menu, text);
    QVERIFY2(found, qPrintable("no entry " + text));
    found->trigger();
}

/// A drag that another program brings to a point of a widget, as the window system reports it. Calls over before the
/// drop if the drag was let in, and returns whether the drop was taken.
inline bool dropFromElsewhere(QWidget &widget, QPoint to, const QMimeData &data, Qt::KeyboardModifiers modifiers = {},
                              const std::function<void()> &over = {})
{
    QDragEnterEvent enter(to, Qt::MoveAction, &data, Qt::LeftButton, modifiers);
    enter.ignore();
    QApplication::sendEvent(&widget, &enter);
    if (!enter.isAccepted())
        return false;
    QDragMoveEvent move(to, Qt::MoveAction, &data, Qt::LeftButton, modifiers);
    QApplication::sendEvent(&widget, &move);
    if (over)
        over();
    QDropEvent dropped(to, Qt::MoveAction, &data, Qt::LeftButton, modifiers);
    dropped.ignore();
    QApplication::sendEvent(&widget, &dropped);
    return dropped.isAccepted();
}

/// The same for a drag that starts at another point of the widget.
inline bool drop(QWidget &widget, QPoint from, QPoint to, const QMimeData &data, Qt::KeyboardModifiers modifiers,
                 const std::function<void()> &over = {})
{
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, from);
    return dropFromElsewhere(widget, to, data, modifiers, over);
}

/// The wheel turned by delta (120 a notch) over a point of a widget.
inline void turnWheel(QWidget &widget, QPointF at, QPoint delta, Qt::KeyboardModifiers modifiers = {})
{
    QWheelEvent event(at, widget.mapToGlobal(at), {}, delta, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

/// The same with Ctrl held, over the middle.
inline void zoomByWheel(QWidget &widget, int delta)
{
    turnWheel(widget, widget.rect().center(), {0, delta}, Qt::ControlModifier);
}

} // namespace EditorInput
