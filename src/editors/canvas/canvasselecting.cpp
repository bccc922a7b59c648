// What is selected on a canvas, moved over it, copied and pasted.

#include "editors/canvas/canvas.h"

#include "editors/canvas/canvasclipboard.h"
#include "ui/outlineband.h"

// ---- Selecting ------------------------------------------------------------------------------

QRect Canvas::selection() const
{
    return m_selection.pixels();
}

void Canvas::selectAll()
{
    if (m_extended) {
        select(m_layer.rect());
        return;
    }
    m_selection.setAnchor(m_geometry.imageRect.topLeft());
    extendSelection(m_geometry.imageRect.bottomRight() + QPoint(1, 1));
}

void Canvas::selectNone()
{
    hideSelection();
    m_selection.clearAnchor();
}

void Canvas::hideSelection()
{
    m_selection.hide();
    m_band->hide();
}

void Canvas::select(const QRect &pixels)
{
    m_selection.select(pixels);
    placeBand();
    m_band->setVisible(hasSelection());
}

void Canvas::placeBand()
{
    if (selection().isEmpty())
        return;
    const QRect selected = m_geometry.rectOf(selection());
    // none of its edges would be seen
    const bool allAround = m_extended && selected.contains(m_geometry.imageRect);
    m_band->setGeometry(allAround ? m_geometry.imageRect : selected);
}

void Canvas::eraseSelection()
{
    fillSelection(tr("Erase"), m_colours.paper);
}

void Canvas::fillSelection(const QString &text, int index)
{
    if (!hasSelection())
        return;
    const QRect pixels = selection();
    applyEdit(text, PixelEditCommand::None, [&](Layer2Image &layer) { layer.fillRectangle(pixels, index); });
}

void Canvas::beginSelection(QPoint point)
{
    const QPoint pixel = m_geometry.pixelAt(point);
    if (m_pointer.buttons == Qt::LeftButton && isMovable(pixel)) {
        finishStroke();
        const FloatingPixels before = m_floating;
        takeUpSelection();
        m_edit.begin(image(), tr("Move"));
        m_grab = SelectionGrab{pixel - m_floating.area().topLeft(), before, selection()};
        return;
    }
    m_selection.setAnchor(point);
    if (m_pointer.buttons & Qt::LeftButton)
        extendSelection(point);
}

void Canvas::extendSelection(QPoint point)
{
    if (m_grab)
        return moveSelection(m_geometry.pixelAt(point) - m_grab->hold);
    if (!m_selection.hasAnchor())
        return;
    m_band->setGeometry(m_selection.extendTo(point, m_geometry, m_layer.rect()));
    m_band->show();
}

void Canvas::endSelection()
{
    finishStroke();
    m_selection.clearAnchor();
    const bool drawn = m_pointer.buttons & Qt::LeftButton;
    if (m_clickDeselects && drawn && (!hasSelection() || m_pointer.pressed == m_pointer.current))
        hideSelection();
}

// ---- Moving what is selected ----------------------------------------------------------------

bool Canvas::isMovable(QPoint pixel) const
{
    return m_extended && selection().contains(pixel);
}

bool Canvas::takeUpSelection()
{
    const bool copies = m_pointer.keys & Qt::ControlModifier;
    if (!copies && m_floating.areOn(image(), selection()))
        return true;
    m_floating.takeUp(image(), selection(), copies ? -1 : m_colours.paper);
    return false;
}

void Canvas::moveSelection(QPoint corner)
{
    m_floating.moveTo(m_layer, corner);
    select(m_floating.area() & m_layer.rect());
    update();
}

// ---- The clipboard --------------------------------------------------------------------------

QImage Canvas::clipboardImage() const
{
    return m_clipboard->image();
}

void Canvas::cut()
{
    m_clipboard->copyToClipboard();
    eraseSelection();
}

void Canvas::copy()
{
    m_clipboard->copyToClipboard();
}

void Canvas::paste()
{
    m_clipboard->pasteFromClipboard();
}

void Canvas::setPasteMode(QUuid paletteId)
{
    if (paletteId != this->paletteId())
        qInfo("Pasting to image with different palette");
    selectNone();
    chooseTool(Quenmora::Ui::Paste);
    update();
}

void Canvas::pasteAtCursor()
{
    const QImage pasted = clipboardImage();
    if (pasted.isNull())
        return;
    const QPoint corner = m_pointer.cursor - QPoint(pasted.width() / 2, pasted.height() / 2);
    applyEdit(tr("Paste"), PixelEditCommand::None, [&](Layer2Image &layer) { layer.paste(pasted, corner); });
}
