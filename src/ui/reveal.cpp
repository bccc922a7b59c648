#include "ui/reveal.h"

#include <QScrollArea>

void reveal(const QWidget *widget, const QRect &part)
{
    for (QWidget *outer = widget->parentWidget(); outer; outer = outer->parentWidget()) {
        auto *area = qobject_cast<QScrollArea *>(outer);
        if (!area || (area->widget() != widget && !area->widget()->isAncestorOf(widget)))
            continue;
        const QPoint centre = widget->mapTo(area->widget(), part.center());
        area->ensureVisible(centre.x(), centre.y(), part.width() / 2 + 1, part.height() / 2 + 1);
        return;
    }
}
