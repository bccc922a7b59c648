#pragma once

#include <QWidget>

class Canvas;
class QScrollBar;

/// A canvas with scroll bars that appear when the image does not fit.
class ScrollCanvas : public QWidget
{
    Q_OBJECT

public:
    /// Takes the canvas as its child.
    explicit ScrollCanvas(Canvas *canvas, QWidget *parent = nullptr);

    Canvas *canvas() const { return m_canvas; }

public slots:
    void updateScrollAmounts(int horizontal, int vertical);
    void updateScrollBars(QPoint pos);

private:
    Canvas *m_canvas;
    QScrollBar *m_vertical;
    QScrollBar *m_horizontal;
};
