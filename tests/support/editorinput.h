#pragma once

#include "editors/canvas/canvas.h"

#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QTest>

/// What tests of the editors do with the mouse, and the pictures that they do it with.
namespace EditorInput {

/// An indexed picture of one index, with a table of 256 colours.
inline QImage filled(QSize size, int index)
{
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable(QList<QRgb>(256, qRgb(0, 0, 0)));
    image.fill(uint(index));
    return image;
}

inline void clickPixel(Canvas &canvas, QPoint pixel)
{
    QTest::mouseClick(&canvas, Qt::LeftButton, Qt::NoModifier, canvas.geometryInWidget().pointOf(pixel) + QPoint(1, 1));
}

inline void trigger(const QMenu &menu, const QString &text)
{
    for (QAction *action : menu.actions()) {
        if (action->text() == text)
            return action->trigger();
    }
    QFAIL(qPrintable(QStringLiteral("no action ") + text));
}

/// A drag from one point of a widget to another, as the window system reports it.
inline void drop(QWidget &widget, QPoint from, QPoint to, const QMimeData &data, Qt::KeyboardModifiers modifiers)
{
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, from);
    QDragEnterEvent enter(to, Qt::MoveAction, &data, Qt::LeftButton, modifiers);
    enter.ignore();
    QApplication::sendEvent(&widget, &enter);
    if (!enter.isAccepted())
        return;
    QDragMoveEvent move(to, Qt::MoveAction, &data, Qt::LeftButton, modifiers);
    QApplication::sendEvent(&widget, &move);
    QDropEvent dropped(to, Qt::MoveAction, &data, Qt::LeftButton, modifiers);
    QApplication::sendEvent(&widget, &dropped);
}

} // namespace EditorInput
