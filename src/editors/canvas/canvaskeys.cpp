#include "editors/canvas/canvaskeys.h"

#include "editors/canvas/canvas.h"
#include "model/palette.h"

#include <QMenu>

CanvasKeys::CanvasKeys(Canvas *canvas) : KeyCursor(canvas), m_canvas(canvas)
{
    connect(canvas, &Canvas::imageChanged, this, &CellTable::tellContent);
}

QSize CanvasKeys::size() const
{
    return m_canvas->palette() ? m_canvas->image().size() : QSize();
}

QRect CanvasKeys::area(QPoint pixel) const
{
    return m_canvas->geometryInWidget().rectOf({pixel, QSize(1, 1)});
}

QPoint CanvasKeys::cellAt(QPoint point) const
{
    const CanvasGeometry &geometry = m_canvas->geometryInWidget();
    return geometry.imageRect.contains(point) ? geometry.pixelAt(point) : Nowhere;
}

QString CanvasKeys::text(QPoint pixel) const
{
    const int index = m_canvas->layer().pixelIndex(pixel);
    const QList<QRgb> colours = m_canvas->palette() ? m_canvas->palette()->colourTable() : QList<QRgb>();
    return tr("Column %1, row %2, colour %3, %4")
        .arg(pixel.x())
        .arg(pixel.y())
        .arg(index)
        .arg(QColor(colours.value(index)).name());
}

QRect CanvasKeys::selected() const
{
    return m_canvas->selection();
}

QRect CanvasKeys::visibleCells() const
{
    return m_canvas->geometryInWidget().visiblePixels();
}

void CanvasKeys::scrollTo(QPoint first)
{
    m_canvas->showFrom(first);
}

void CanvasKeys::pick(QPoint pixel, bool other)
{
    CanvasSurface &surface = *m_canvas;
    const int index = m_canvas->layer().pixelIndex(pixel);
    if (other)
        surface.pickPaper(index);
    else
        surface.pickInk(index);
}

void CanvasKeys::select(const QRect &pixels)
{
    if (m_canvas->mode() != Quenmora::Ui::Select)
        m_canvas->setMode(Quenmora::Ui::Select);
    m_canvas->select(pixels);
}

void CanvasKeys::selectNone()
{
    m_canvas->selectNone();
}

bool CanvasKeys::selectsFrom(QPoint pixel) const
{
    return m_canvas->mode() == Quenmora::Ui::Select && !m_canvas->selection().contains(pixel);
}

void CanvasKeys::openMenu(QPoint globalPosition)
{
    m_canvas->contextMenu()->popup(globalPosition);
}
