#pragma once

#include <QtWidgets>

/// Watches what of a widget is painted.
struct PaintWatch : QObject
{
    QRegion region;

    explicit PaintWatch(QWidget *widget) { widget->installEventFilter(this); }

    /// What a change makes the widget paint.
    template <typename Change>
    QRegion after(Change change)
    {
        QCoreApplication::processEvents();
        region = {};
        change();
        QCoreApplication::processEvents();
        return region;
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};
