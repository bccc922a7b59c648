#pragma once

#include <QObject>

class Canvas;

/// Says on a canvas that no palette is bound to how to get one: the canvas itself would leave there whatever stood
/// on the screen before.
class PaletteNotice : public QObject
{
    Q_OBJECT

public:
    explicit PaletteNotice(Canvas *canvas);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Canvas *m_canvas;
};
