#pragma once

#include "editors/canvas/pixelpen.h"
#include "undo/pixeleditcommand.h"

#include <functional>

class Layer2Image;
class QCursor;
class QImage;
class QPoint;
class QString;
class StrokePath;
struct CanvasGeometry;
struct CanvasPointer;

/// What a tool sees of its canvas, and may do with it.
class CanvasSurface
{
public:
    virtual Layer2Image &layer() = 0;
    /// The mouse and its drag, in image pixels.
    virtual const CanvasPointer &pointer() const = 0;
    virtual const CanvasGeometry &geometryInWidget() const = 0;
    /// What the paste tool pastes; null before something was pasted.
    virtual QImage clipboardImage() const = 0;
    /// The colours that the layer's indices show now.
    virtual QList<QRgb> shownColours() const = 0;

    virtual const PaintOptions &paintOptions() const = 0;
    /// A pen for the canvas's layer, or for a copy of it in which something is previewed.
    virtual PixelPen pen(Layer2Image &layer, PixelPen::Colour colour) const = 0;
    /// The freehand stroke that is being drawn, or was drawn last.
    virtual StrokePath &stroke() = 0;

    virtual void showCursor(const QCursor &cursor) = 0;
    virtual void scheduleRepaint() = 0;
    /// Ends the preview of the shape being dragged.
    virtual void resetDrag() = 0;

    /// Remembers the image as it is before an edit; a stroke that is still going on ends here.
    virtual void beginEdit() = 0;
    /// True from beginEdit() to the edit's end.
    virtual bool isEditing() const = 0;
    /// Puts the image back as it was when the edit began, which goes on.
    virtual void startOver() = 0;
    /// Announces what the draw tool has drawn since the press, if it is drawing.
    virtual void finishStroke() = 0;
    /// Runs an operation on the layer as one edit.
    virtual void applyEdit(const QString &text, PixelEditCommand::Kind kind,
                           const std::function<void(Layer2Image &)> &operation) = 0;
    virtual void pasteAtCursor() = 0;

    /// Makes a colour ink or paper, and announces it as picked.
    virtual void pickInk(int index) = 0;
    virtual void pickPaper(int index) = 0;

    /// Points are those of the widget.
    virtual void beginSelection(QPoint point) = 0;
    virtual void extendSelection(QPoint point) = 0;
    virtual void endSelection() = 0;
    /// Whether a drag from a pixel moves what is selected.
    virtual bool isMovable(QPoint pixel) const = 0;
    virtual void openContextMenu(QPoint globalPosition) = 0;

protected:
    ~CanvasSurface() = default;
};
