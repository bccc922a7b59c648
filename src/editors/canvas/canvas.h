#pragma once

#include "editors/canvas/canvascolours.h"
#include "editors/canvas/canvasgeometry.h"
#include "editors/canvas/canvasoverlay.h"
#include "editors/canvas/canvaspointer.h"
#include "editors/canvas/canvasselection.h"
#include "editors/canvas/canvassurface.h"
#include "editors/canvas/canvastoolbox.h"
#include "editors/canvas/floatingpixels.h"
#include "editors/canvas/layer2image.h"
#include "editors/canvas/paintoptions.h"
#include "editors/canvas/pendingedit.h"
#include "editors/canvas/strokepath.h"

#include <QUuid>
#include <QWidget>

#include <optional>

class CanvasClipboard;
class OutlineBand;
class QMenu;

/// The zoomable paint area of the tile, sprite and image editors.
///
/// It shows one indexed image in the colours of a palette and lets the current tool draw on it. It
/// never writes to an asset: imageChanged() says that the image is another one, and edited() that
/// an edit is finished, with the pixels before and after; the editor around it does the rest.
///
/// The widget takes events, paints and announces. What it holds are values that know no widget, and what the tools
/// may do with it is CanvasSurface.
class Canvas : public QWidget, public CanvasSurface
{
    Q_OBJECT

public:
    explicit Canvas(QSize imageSize, QWidget *parent = nullptr);
    ~Canvas() override;

    const QImage &image() const { return m_layer.image(); }
    /// The same with the shape that is being dragged.
    QImage drawnImage() const;
    /// What is drawn with the colours that the palette shows now, as the canvas paints it.
    QImage shownImage() const;
    Palette *palette() const { return m_palette; }
    /// Shows the image in the palette's colours from now on; null unbinds.
    void bindPalette(const QPointer<Palette> &palette);
    /// The palette's id, null without one.
    QUuid paletteId() const;

    int ink() const { return m_colours.ink; }
    int paper() const { return m_colours.paper; }
    /// Exchanges ink and paper, and announces both as picked.
    void swapInkAndPaper();
    int zoom() const { return m_geometry.zoom; }
    Quenmora::Ui::ToolButton mode() const { return m_tools.mode(); }
    Quenmora::Ui::ImageType imageType() const { return m_colours.imageType; }
    void setImageType(Quenmora::Ui::ImageType type);
    /// Lets paste take other programs' pictures as well, in count (16 or 256) entries of the palette from
    /// first on. A canvas that has not been told takes only what canvases copy.
    void setPictureColours(int first, int count);
    /// A picture as pixels to paste, no larger than the image; null when pictures are not taken.
    QImage pixelsOf(const QImage &picture) const;
    bool tallPixels() const { return m_geometry.tallPixels; }
    void setTallPixels(bool tall);

    /// Chooses a tool, or runs an action of the tool palette.
    void setMode(Quenmora::Ui::ToolButton mode, bool checked = false);

    /// Lets a click with the select tool, and a drag that encloses no pixel, end the selection. A canvas that has
    /// not been told keeps what the press began: nothing that can be copied or filled, but at zoom 1 the pixel.
    void setClickDeselects(bool deselects) { m_clickDeselects = deselects; }
    /// Gives a canvas what people have in editors beyond what it does by itself: filled circles, straight lines and
    /// squares with Shift, Escape to drop what is being drawn, and a selection that is moved by dragging and by the
    /// arrow keys, whose outline marches, and which is all of the image when all is selected.
    void setExtended(bool extended);
    /// How the tools paint from now on.
    void setPaintOptions(const PaintOptions &options);

    /// Shows another picture faintly over the image; null for none.
    void setGhost(const QImage &ghost);

    /// Whether at least one pixel is selected.
    bool hasSelection() const { return !selection().isEmpty(); }
    /// The selection in image pixels, clipped to the image; empty when there is none.
    QRect selection() const;
    /// Selects pixels of the image.
    void select(const QRect &pixels);
    /// Scrolls until a pixel is the first one shown, as far as the image reaches.
    void showFrom(QPoint pixel) { scrollBy(m_geometry.scroll - pixel); }
    /// What the paste tool pastes; null before something was pasted.
    QImage clipboardImage() const override;
    QList<QRgb> shownColours() const override;

    /// Scrolls by one pixel for an arrow key without modifiers; false for every other key.
    bool scrollByKey(const QKeyEvent *event);

    QSize sizeHint() const override;

    QMenu *contextMenu() const { return m_contextMenu; }

    Layer2Image &layer() override { return m_layer; }
    const CanvasGeometry &geometryInWidget() const override { return m_geometry; }
    const CanvasPointer &pointer() const override { return m_pointer; }
    const PaintOptions &paintOptions() const override { return m_options; }
    PixelPen pen(Layer2Image &layer, PixelPen::Colour colour) const override;
    StrokePath &stroke() override { return m_stroke; }
    void beginEdit() override;
    bool isEditing() const override { return m_edit.isOpen(); }
    /// Whether a stroke or a shape is being drawn, or pixels are being moved.
    bool isDrawing() const { return isEditing() || isDraggingShape(); }
    /// Ends the edit, and announces it when it changed a pixel.
    void finishEdit(const QString &text, PixelEditCommand::Kind kind);
    void startOver() override;
    void finishStroke() override;
    void applyEdit(const QString &text, PixelEditCommand::Kind kind,
                   const std::function<void(Layer2Image &)> &operation) override;

public slots:
    /// Sets the first row shown; the vertical scroll bar is connected here.
    void setHorizontalPosition(int pos);
    /// Sets the first column shown; the horizontal scroll bar is connected here.
    void setVerticalPosition(int pos);
    void selectAll();
    void selectNone();
    void cut();
    void copy();
    void paste();
    /// Lets the clipboard's pixels follow the pointer until another tool is chosen.
    void setPasteMode(QUuid paletteId);
    void setZoomLevel(int level);
    void setGridLinesVisible(bool visible);
    void setInk(int index);
    void setPaper(int index);
    /// Shows another image; an edit of the one before that is going on is given up.
    void setImage(const QImage &image);
    void paletteChanged(int first, int last, QColor colour);
    /// Moves the pixels of an image of 16 colours into bank offset (1–16). No edit is announced.
    void remap(int offset);

signals:
    /// The largest scroll offsets; a value below 1 means that this side fits.
    void scrollValuesChanged(int horizontal, int vertical);
    void scrollPositionChanged(QPoint pos);
    void imageChanged();
    /// drawnImage() is another one while something is being drawn; imageChanged() or strokeDropped() follows at the
    /// end.
    void strokeDrawn();
    /// What was being drawn is not there any more.
    void strokeDropped();
    void edited(QString text, QImage before, QImage after, PixelEditCommand::Kind kind);
    void foregroundPicked(int index);
    void backgroundPicked(int index);
    /// Another tool is the current one, the paste tool included.
    void modeChanged(Quenmora::Ui::ToolButton mode);
    /// The pixel under the pointer and its index; (-1, -1) and -1 outside the image.
    void pixelHovered(QPoint pixel, int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private slots:
    void updatePalette(int index, QColor colour, bool priority);

private:
    void buildContextMenu();

    // what the tools do with the canvas
    void showCursor(const QCursor &cursor) override { setCursor(cursor); }
    void scheduleRepaint() override { update(); }
    void resetDrag() override { m_pointer.endDrag(); }
    void pasteAtCursor() override;
    void pickInk(int index) override;
    void pickPaper(int index) override;
    void beginSelection(QPoint point) override;
    void extendSelection(QPoint point) override;
    void endSelection() override;
    bool isMovable(QPoint pixel) const override;
    void openContextMenu(QPoint globalPosition) override;

    bool isDraggingShape() const;
    /// Drops what is being drawn or moved, as if it had not been begun.
    void dropStroke();
    /// Ends a drag whose release went elsewhere: what is drawn already stays.
    void endLostDrag();
    /// Changes the geometry, if asked to, and fits the image; the selection stays on its pixels.
    void relayout(const std::function<void(CanvasGeometry &)> &change = {});
    /// Shows another part of the image; the selection stays on its pixels.
    void scrollTo(QPoint position);
    void scrollBy(QPoint delta);
    void placeBand();
    /// Lets the selected pixels float, or float on. True when they did before.
    bool takeUpSelection();
    void moveSelection(QPoint corner);
    /// Moves the selected pixels for an arrow key, as a step of its own.
    bool nudgeByKey(const QKeyEvent *event);
    /// Takes notice of the keys held with the mouse; repaints when that changes the shape being dragged.
    void holdKeys(Qt::KeyboardModifiers keys);
    void hideSelection();
    void eraseSelection();
    void fillSelection(const QString &text, int index);
    void chooseTool(Quenmora::Ui::ToolButton mode);
    void hoverAt(QPoint pixel);
    void paintImage(QPainter &painter) const;
    void paintGhost(QPainter &painter) const;

    QPointer<Palette> m_palette;
    Layer2Image m_layer;
    CanvasGeometry m_geometry;
    CanvasColours m_colours;
    CanvasOverlay m_overlay;
    CanvasPointer m_pointer;
    PendingEdit m_edit;
    CanvasSelection m_selection;
    CanvasToolBox m_tools;
    QMenu *m_contextMenu;
    OutlineBand *m_band; ///< shows the selection
    PaintOptions m_options;
    StrokePath m_stroke;
    QImage m_ghost;
    FloatingPixels m_floating;
    std::optional<SelectionGrab> m_grab; ///< while the floating pixels are dragged
    PixelEditCommand::Kind m_nudge = PixelEditCommand::Nudge;
    bool m_clickDeselects = false;
    bool m_extended = false;
    QPointer<CanvasClipboard> m_clipboard;
};
