#pragma once

class QRect;
class QWidget;

/// Scrolls the area around a widget, if there is one, until a part of the widget is seen.
void reveal(const QWidget *widget, const QRect &part);
