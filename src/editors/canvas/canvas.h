#pragma once

#include "editors/canvas/canvasgeometry.h"
#include "editors/canvas/layer2image.h"
#include "ui/enums.h"
#include "undo/pixeleditcommand.h"

#include <QHash>
#include <QUuid>
#include <QWidget>

#include <array>
#include <functional>
#include <memory>

class CanvasClipboard;
class CanvasTool;
class QMenu;
class QRubberBand;

/// The zoomable paint area of the tile, sprite and image editors.
///
/// It shows one indexed image in the colours of a palette and lets the current tool draw on it. It
/// never writes to an asset: imageChanged() says that the image is another one, and edited() that
/// an edit is finished, with the pixels before and after; the editor around it does the rest.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(QSize imageSize, QWidget *parent = nullptr);
    ~Canvas() override;

    const QImage &image() const { return m_layer.image(); }
    Palette *palette() const { return m_palette; }
    /// Shows the image in the palette's colours from now on; null unbinds.
    void bindPalette(const QPointer<Palette> &palette);
    /// The palette's id, null without one.
    QUuid paletteId() const;

    int ink() const { return m_ink; }
    int paper() const { return m_paper; }
    /// Exchanges ink and paper, and announces both as picked.
    void swapInkAndPaper();
    int zoom() const { return m_geometry.zoom; }
    Quenmora::Ui::ToolButton mode() const { return m_mode; }
    Quenmora::Ui::ImageType imageType() const { return m_imageType; }
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

    bool hasSelection() const;
    /// The selection in image pixels, clipped to the image; empty when there is none.
    QRect selection() const;
    /// What the paste tool pastes; null before something was pasted.
    QImage clipboardImage() const;

    /// Scrolls by one pixel for an arrow key without modifiers; false for every other key.
    bool scrollByKey(const QKeyEvent *event);

    QSize sizeHint() const override;

    // What the tools work with.
    Layer2Image &layer() { return m_layer; }
    const Layer2Image &layer() const { return m_layer; }
    const CanvasGeometry &geometryInWidget() const { return m_geometry; }
    Qt::MouseButtons heldButtons() const { return m_buttons; }
    /// The image pixel under the pointer, (-1, -1) after the pointer left.
    QPoint cursorPixel() const { return m_cursor; }
    QPoint pressPixel() const { return m_pressPixel; }
    QPoint currentPixel() const { return m_currentPixel; }
    QMenu *contextMenu() const { return m_contextMenu; }
    /// Ends the preview of the shape being dragged.
    void resetDrag();
    /// Remembers the image as it is before an edit; a stroke that is still going on ends here.
    void beginEdit();
    /// True from beginEdit() to finishEdit().
    bool isEditing() const { return !m_beforeImage.isNull(); }
    /// Announces the edit when it changed a pixel.
    void finishEdit(const QString &text, PixelEditCommand::Kind kind);
    /// Runs an operation on the layer as one edit.
    void applyEdit(const QString &text, PixelEditCommand::Kind kind,
                   const std::function<void(Layer2Image &)> &operation);
    /// Announces what the draw tool has drawn since the press, if it is drawing.
    void finishStroke();
    void beginSelection(QPoint point);
    void extendSelection(QPoint point);
    void clearAnchor();
    void pasteAtCursor();

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
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private slots:
    void updatePalette(int index, QColor colour, bool priority);

private:
    static constexpr QPoint Nowhere{-1, -1};

    void buildContextMenu();
    /// Changes the geometry, if asked to, and fits the image; the selection stays on its pixels.
    void relayout(const std::function<void(CanvasGeometry &)> &change = {});
    /// Shows another part of the image; the selection stays on its pixels.
    void scrollTo(QPoint position);
    void scrollBy(QPoint delta);
    void eraseSelection();
    void fillSelection(const QString &text, int index);
    void setSelection(QPoint from, QPoint to);
    void placeSelection(const QRect &pixels);
    void chooseTool(Quenmora::Ui::ToolButton mode);
    void hoverAt(QPoint pixel);
    void paintImage(QPainter &painter) const;
    void paintChecker(QPainter &painter, QSize cell) const;
    void paintGridLines(QPainter &painter, QSize cell) const;

    QPointer<Palette> m_palette;
    Layer2Image m_layer;
    QMenu *m_contextMenu;
    bool m_pixelGrid = false;
    bool m_gridLines = false;
    int m_overlayAlpha = 80;
    int m_ink = 1;
    int m_paper = 0;
    Quenmora::Ui::ImageType m_imageType = Quenmora::Ui::Full256;
    int m_firstPictureColour = 0;
    int m_pictureColourCount = 0;
    Quenmora::Ui::ToolButton m_mode = Quenmora::Ui::Draw;
    CanvasGeometry m_geometry;
    QPoint m_cursor;
    QPoint m_anchor;
    std::array<QColor, 2> m_overlayColours{QColor(64, 64, 64), QColor(80, 80, 80)};
    Qt::MouseButtons m_buttons = Qt::NoButton;
    QRubberBand *m_selection;
    QPointer<CanvasClipboard> m_clipboard;
    QPoint m_pressPixel = Nowhere;
    QPoint m_currentPixel = Nowhere;
    QImage m_beforeImage;
    QHash<Quenmora::Ui::ToolButton, std::shared_ptr<CanvasTool>> m_tools;
    CanvasTool *m_tool = nullptr;
};
