#include "editors/canvas/canvas.h"

#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/circlecanvastool.h"
#include "editors/canvas/drawcanvastool.h"
#include "editors/canvas/fillcanvastool.h"
#include "editors/canvas/linecanvastool.h"
#include "editors/canvas/pastecanvastool.h"
#include "editors/canvas/pickcanvastool.h"
#include "editors/canvas/pictureimport.h"
#include "editors/canvas/rectanglecanvastool.h"
#include "editors/canvas/selectcanvastool.h"

#include <QMenu>
#include <QMetaEnum>
#include <QRubberBand>

#include <algorithm>
#include <cstring>

using namespace Quenmora::Ui;

namespace {

/// Compares indices; QImage's own comparison takes two indices of one colour for equal.
bool samePixels(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return false;
    for (int y = 0; y < a.height(); ++y) {
        if (std::memcmp(a.constScanLine(y), b.constScanLine(y), size_t(a.width())) != 0)
            return false;
    }
    return true;
}

} // namespace

Canvas::Canvas(QSize imageSize, QWidget *parent)
    : QWidget(parent)
    , m_layer(imageSize)
    , m_contextMenu(new QMenu(this))
    , m_selection(new QRubberBand(QRubberBand::Rectangle, this))
    , m_clipboard(new CanvasClipboard(this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Paint canvas"));
    m_selection->hide();

    m_tools.insert(Draw, std::make_shared<DrawCanvasTool>(this));
    m_tools.insert(Select, std::make_shared<SelectCanvasTool>(this));
    m_tools.insert(Rectangle, std::make_shared<RectangleCanvasTool>(this, false));
    m_tools.insert(RectangleFill, std::make_shared<RectangleCanvasTool>(this, true));
    m_tools.insert(Line, std::make_shared<LineCanvasTool>(this));
    m_tools.insert(Circle, std::make_shared<CircleCanvasTool>(this));
    m_tools.insert(Fill, std::make_shared<FillCanvasTool>(this));
    m_tools.insert(Pick, std::make_shared<PickCanvasTool>(this));
    m_tools.insert(Paste, std::make_shared<PasteCanvasTool>(this));
    chooseTool(Draw);

    connect(m_clipboard, &CanvasClipboard::pasted, this, &Canvas::setPasteMode);
    connect(m_clipboard, &CanvasClipboard::copied, this, [this](bool cut) {
        if (!cut)
            return;
        eraseSelection();
        emit imageChanged();
    });
    buildContextMenu();
}

Canvas::~Canvas() = default;

void Canvas::buildContextMenu()
{
    // The clipboard tells a cut from a copy by the action that sent the request.
    m_contextMenu->addAction(tr("Cut"), m_clipboard.data(), &CanvasClipboard::copyToClipboard);
    m_contextMenu->addAction(tr("Copy"), m_clipboard.data(), &CanvasClipboard::copyToClipboard);
    m_contextMenu->addAction(tr("Paste"), m_clipboard.data(), &CanvasClipboard::pasteFromClipboard);
    m_contextMenu->addAction(tr("Select All"), this, &Canvas::selectAll);
    m_contextMenu->addAction(tr("Select None"), this, &Canvas::selectNone);
    m_contextMenu->addAction(tr("Erase"), this, &Canvas::eraseSelection);
    m_contextMenu->addAction(tr("Fill"), this, [this] { fillSelection(tr("Fill"), m_ink); });
}

void Canvas::bindPalette(const QPointer<Palette> &palette)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    m_layer.setPalette(palette);
    if (m_palette)
        connect(m_palette, &Palette::colourChanged, this, &Canvas::updatePalette);
    update();
}

QUuid Canvas::paletteId() const
{
    return m_palette ? m_palette->id() : QUuid();
}

void Canvas::swapInkAndPaper()
{
    const int ink = m_ink;
    setInk(m_paper);
    setPaper(ink);
    emit foregroundPicked(m_ink);
    emit backgroundPicked(m_paper);
}

void Canvas::setPictureColours(int first, int count)
{
    m_firstPictureColour = first;
    m_pictureColourCount = count;
}

QImage Canvas::pixelsOf(const QImage &picture) const
{
    if (!m_palette || m_pictureColourCount == 0)
        return {};
    // Only what the image has room for is converted.
    const QImage part = picture.copy(m_layer.rect() & picture.rect());
    return PictureImport::indexed(part, *m_palette, m_firstPictureColour, m_pictureColourCount);
}

void Canvas::setImageType(ImageType type)
{
    m_imageType = type;
    update();
}

void Canvas::setTallPixels(bool tall)
{
    if (tall == m_geometry.tallPixels)
        return;
    relayout([tall](CanvasGeometry &geometry) { geometry.tallPixels = tall; });
}

bool Canvas::hasSelection() const
{
    return !m_selection->isHidden();
}

QImage Canvas::clipboardImage() const
{
    return m_clipboard->image();
}

QSize Canvas::sizeHint() const
{
    return m_geometry.scaled(image().size());
}

// ---- Slots ----------------------------------------------------------------------------------

void Canvas::setHorizontalPosition(int pos)
{
    scrollTo({m_geometry.scroll.x(), pos});
}

void Canvas::setVerticalPosition(int pos)
{
    scrollTo({pos, m_geometry.scroll.y()});
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
    chooseTool(Paste);
    update();
}

void Canvas::setZoomLevel(int level)
{
    const int zoom = std::clamp(level, CanvasGeometry::MinimumZoom, CanvasGeometry::MaximumZoom);
    relayout([zoom](CanvasGeometry &geometry) { geometry.zoom = zoom; });
}

void Canvas::setGridLinesVisible(bool visible)
{
    m_gridLines = visible;
    update();
}

void Canvas::setInk(int index)
{
    m_ink = index;
    m_layer.setInk(index);
}

void Canvas::setPaper(int index)
{
    m_paper = index;
    m_layer.setPaper(index);
}

void Canvas::setImage(const QImage &image)
{
    // What was drawn into the image before belongs to another tile, sprite or moment.
    m_beforeImage = QImage();
    m_layer.setImage(image);
    m_layer.reloadColourTable();
    relayout();
    emit imageChanged();
}

void Canvas::paletteChanged(int, int, QColor)
{
    m_layer.reloadColourTable();
    update();
}

void Canvas::updatePalette(int, QColor, bool)
{
    m_layer.reloadColourTable();
    update();
}

void Canvas::remap(int offset)
{
    if (m_imageType != Offset16)
        return;
    const int base = ((offset - 1) * 16) & 0xF0;
    m_layer.moveToGroup(base);
    m_ink = m_ink % 16 + base;
    m_paper = m_paper % 16 + base;
    update();
}

// ---- Edits ----------------------------------------------------------------------------------

void Canvas::resetDrag()
{
    m_pressPixel = m_currentPixel = Nowhere;
}

void Canvas::beginEdit()
{
    finishStroke();
    m_beforeImage = image();
}

void Canvas::finishStroke()
{
    if (!isEditing())
        return;
    emit imageChanged();
    finishEdit(tr("Draw"), PixelEditCommand::None);
}

void Canvas::finishEdit(const QString &text, PixelEditCommand::Kind kind)
{
    if (m_beforeImage.isNull())
        return;
    const QImage before = std::exchange(m_beforeImage, QImage());
    if (!samePixels(before, image()))
        emit edited(text, before, image(), kind);
}

void Canvas::applyEdit(const QString &text, PixelEditCommand::Kind kind,
                       const std::function<void(Layer2Image &)> &operation)
{
    if (image().isNull())
        return;
    beginEdit();
    operation(m_layer);
    update();
    emit imageChanged();
    finishEdit(text, kind);
}

void Canvas::eraseSelection()
{
    fillSelection(tr("Erase"), m_paper);
}

void Canvas::fillSelection(const QString &text, int index)
{
    if (!hasSelection())
        return;
    const QRect pixels = selection();
    applyEdit(text, PixelEditCommand::None, [&](Layer2Image &layer) { layer.fillRectangle(pixels, index); });
}

void Canvas::pasteAtCursor()
{
    const QImage pasted = clipboardImage();
    if (pasted.isNull())
        return;
    const QPoint corner = m_cursor - QPoint(pasted.width() / 2, pasted.height() / 2);
    applyEdit(tr("Paste"), PixelEditCommand::None, [&](Layer2Image &layer) { layer.paste(pasted, corner); });
}

// ---- Modes ----------------------------------------------------------------------------------

void Canvas::chooseTool(ToolButton mode)
{
    // A drag does not go on in another tool.
    finishStroke();
    m_buttons = Qt::NoButton;
    m_mode = mode;
    m_tool = m_tools.value(mode).get();
    m_tool->activate();
    emit modeChanged(mode);
}

void Canvas::setMode(ToolButton mode, bool checked)
{
    if (mode == Cut || mode == Copy) {
        m_clipboard->copyToClipboard();
        if (mode == Cut)
            eraseSelection();
        m_selection->hide();
        update();
        return;
    }

    selectNone();
    switch (mode) {
    case Draw:
    case Line:
    case Rectangle:
    case RectangleFill:
    case Circle:
    case Select:
    case Fill:
    case Pick:
        chooseTool(mode);
        break;
    case Paste:
        m_clipboard->pasteFromClipboard();
        break;
    case Grid:
        m_pixelGrid = checked;
        break;
    case ZoomIn:
        setZoomLevel(m_geometry.zoom + CanvasGeometry::ZoomStep);
        break;
    case ZoomOut:
        setZoomLevel(m_geometry.zoom - CanvasGeometry::ZoomStep);
        break;
    case RotateCW:
        applyEdit(tr("Rotate"), PixelEditCommand::None, [](Layer2Image &layer) { layer.rotate(90); });
        break;
    case RotateCCW:
        applyEdit(tr("Rotate"), PixelEditCommand::None, [](Layer2Image &layer) { layer.rotate(270); });
        break;
    case MoveUp:
        applyEdit(tr("Scroll"), PixelEditCommand::Scroll, &Layer2Image::shiftUp);
        break;
    case MoveDown:
        applyEdit(tr("Scroll"), PixelEditCommand::Scroll, &Layer2Image::shiftDown);
        break;
    case MoveLeft:
        applyEdit(tr("Scroll"), PixelEditCommand::Scroll, &Layer2Image::shiftLeft);
        break;
    case MoveRight:
        applyEdit(tr("Scroll"), PixelEditCommand::Scroll, &Layer2Image::shiftRight);
        break;
    case Flip:
        applyEdit(tr("Flip"), PixelEditCommand::None, &Layer2Image::flip);
        break;
    case Mirror:
        applyEdit(tr("Mirror"), PixelEditCommand::None, &Layer2Image::mirror);
        break;
    default:
        qInfo().noquote().nospace() << "PaintCanvas::setMode(" << QMetaEnum::fromType<ToolButton>().valueToKey(mode)
                                    << ")";
        break;
    }
    update();
}

// ---- Selection ------------------------------------------------------------------------------

QRect Canvas::selection() const
{
    if (!hasSelection())
        return {};
    const QRect band = m_selection->geometry();
    const QSize cell = m_geometry.cell();
    const QRect pixels(m_geometry.pixelAt(band.topLeft()),
                       QSize(band.width() / cell.width(), band.height() / cell.height()));
    return pixels & image().rect();
}

void Canvas::selectAll()
{
    m_anchor = m_geometry.imageRect.topLeft();
    setSelection(m_anchor, m_geometry.imageRect.bottomRight() + QPoint(1, 1));
}

void Canvas::selectNone()
{
    m_selection->hide();
    m_anchor = Nowhere;
}

void Canvas::beginSelection(QPoint point)
{
    m_anchor = point;
    if (m_buttons & Qt::LeftButton)
        setSelection(m_anchor, point);
}

void Canvas::extendSelection(QPoint point)
{
    if (m_anchor != Nowhere)
        setSelection(m_anchor, point);
}

void Canvas::clearAnchor()
{
    m_anchor = Nowhere;
}

void Canvas::setSelection(QPoint from, QPoint to)
{
    const QRect &area = m_geometry.imageRect;
    const QSize cell = m_geometry.cell();
    const auto snapped = [&](QPoint point) {
        const QPoint offset = point - area.topLeft();
        return point - QPoint(offset.x() % cell.width(), offset.y() % cell.height());
    };
    const QPoint a = snapped(from);
    const QPoint b = snapped(to);
    const QPoint topLeft(std::max(std::min(a.x(), b.x()), area.left()), std::max(std::min(a.y(), b.y()), area.top()));
    const QPoint bottomRight(std::min(std::max(a.x(), b.x()), area.right()),
                             std::min(std::max(a.y(), b.y()), area.bottom()));
    m_selection->setGeometry(QRect(topLeft, bottomRight));
    m_selection->show();
}

void Canvas::placeSelection(const QRect &pixels)
{
    m_selection->setGeometry(QRect(m_geometry.pointOf(pixels.topLeft()), m_geometry.scaled(pixels.size())));
}

// ---- Layout ---------------------------------------------------------------------------------

void Canvas::relayout(const std::function<void(CanvasGeometry &)> &change)
{
    const QRect selected = selection();
    const QPoint scroll = m_geometry.scroll;
    if (change)
        change(m_geometry);
    m_geometry.layout(size(), image().size());
    const QSize overflow = m_geometry.overflow(size(), image().size());
    emit scrollValuesChanged(overflow.width(), overflow.height());
    if (m_geometry.scroll != scroll)
        emit scrollPositionChanged(m_geometry.scroll);
    if (!selected.isEmpty())
        placeSelection(selected);
    updateGeometry();
    update();
}

void Canvas::resizeEvent(QResizeEvent *)
{
    relayout();
}

void Canvas::scrollTo(QPoint position)
{
    const QRect selected = selection();
    m_geometry.scroll = position;
    if (!selected.isEmpty())
        placeSelection(selected);
    update();
}

void Canvas::scrollBy(QPoint delta)
{
    scrollTo(m_geometry.scrolled(delta, image().size()));
    emit scrollPositionChanged(m_geometry.scroll);
}
