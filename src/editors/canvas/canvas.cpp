#include "editors/canvas/canvas.h"

#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/canvastool.h"
#include "editors/canvas/layeraction.h"
#include "ui/commands.h"
#include "ui/outlineband.h"

#include <QMenu>
#include <QMetaEnum>

#include <algorithm>
#include <utility>

using namespace Quenmora::Ui;

Canvas::Canvas(QSize imageSize, QWidget *parent)
    : QWidget(parent)
    , m_layer(imageSize)
    , m_tools(this)
    , m_contextMenu(new QMenu(this))
    , m_band(new OutlineBand(this))
    , m_clipboard(new CanvasClipboard(this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Paint canvas"));
    m_band->hide();
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
    const auto add = [this](const char *name, const QString &text, auto... request) {
        Commands::addPointed(m_contextMenu->addAction(text, request...), QLatin1String(name));
    };
    // The clipboard tells a cut from a copy by the action that sent the request.
    add("canvasMenu.cut", tr("Cut"), m_clipboard.data(), &CanvasClipboard::copyToClipboard);
    add("canvasMenu.copy", tr("Copy"), m_clipboard.data(), &CanvasClipboard::copyToClipboard);
    add("canvasMenu.paste", tr("Paste"), m_clipboard.data(), &CanvasClipboard::pasteFromClipboard);
    add("canvasMenu.selectAll", tr("Select All"), this, &Canvas::selectAll);
    add("canvasMenu.selectNone", tr("Select None"), this, &Canvas::selectNone);
    const auto addCommand = [this](const char *name, const QString &text, auto run) {
        QAction *action = m_contextMenu->addAction(text, this, run);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        Commands::add(action, QLatin1String(name));
    };
    addCommand("pixels.erase", tr("Erase"), &Canvas::eraseSelection);
    addCommand("pixels.fillSelection", tr("Fill"), [this] { fillSelection(tr("Fill"), m_colours.ink); });
}

void Canvas::bindPalette(const QPointer<Palette> &palette)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    m_layer.setPalette(palette);
    if (m_palette) {
        connect(m_palette, &Palette::colourChanged, this, &Canvas::updatePalette);
        connect(m_palette, &Palette::shownColoursChanged, this, qOverload<>(&QWidget::update));
    }
    update();
}

QImage Canvas::drawnImage() const
{
    if (!isDraggingShape() || !m_layer.rect().contains(m_pointer.pressed))
        return image();
    Layer2Image preview(QSize(1, 1));
    preview.copyFrom(m_layer);
    m_tools.tool().drawPreview(preview);
    return preview.image();
}

QImage Canvas::shownImage() const
{
    return m_palette ? m_palette->shown(drawnImage()) : drawnImage();
}

QList<QRgb> Canvas::shownColours() const
{
    return m_palette ? m_palette->shown(image().colorTable()) : image().colorTable();
}

QUuid Canvas::paletteId() const
{
    return m_palette ? m_palette->id() : QUuid();
}

void Canvas::swapInkAndPaper()
{
    const int ink = m_colours.ink;
    pickInk(m_colours.paper);
    pickPaper(ink);
}

void Canvas::setPictureColours(int first, int count)
{
    m_colours.firstOfPictures = first;
    m_colours.countOfPictures = count;
}

QImage Canvas::pixelsOf(const QImage &picture) const
{
    // Only what the image has room for is converted.
    return m_colours.indexed(picture.copy(m_layer.rect() & picture.rect()), m_palette);
}

void Canvas::setImageType(ImageType type)
{
    m_colours.imageType = type;
    update();
}

void Canvas::setExtended(bool extended)
{
    m_extended = extended;
    m_band->setMarching(extended);
    if (extended)
        m_tools.addFilledCircle(this);
}

void Canvas::setPaintOptions(const PaintOptions &options)
{
    m_options = options;
    update();
}

void Canvas::setGhost(const QImage &ghost)
{
    m_ghost = ghost;
    update();
}

PixelPen Canvas::pen(Layer2Image &layer, PixelPen::Colour colour) const
{
    const QImage before = isEditing() ? m_edit.before() : image();
    return {layer, m_options, colour, before, m_colours.imageType == Offset16};
}

void Canvas::setTallPixels(bool tall)
{
    if (tall == m_geometry.tallPixels)
        return;
    relayout([tall](CanvasGeometry &geometry) { geometry.tallPixels = tall; });
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

void Canvas::setZoomLevel(int level)
{
    const int zoom = std::clamp(level, CanvasGeometry::MinimumZoom, CanvasGeometry::MaximumZoom);
    relayout([zoom](CanvasGeometry &geometry) { geometry.zoom = zoom; });
}

void Canvas::setGridLinesVisible(bool visible)
{
    m_overlay.gridLines = visible;
    update();
}

void Canvas::setInk(int index)
{
    m_colours.ink = index;
    m_layer.setInk(index);
}

void Canvas::setPaper(int index)
{
    m_colours.paper = index;
    m_layer.setPaper(index);
}

void Canvas::setImage(const QImage &image)
{
    // What was drawn into the image before belongs to another tile, sprite or moment.
    m_edit.giveUp();
    m_grab.reset();
    if (m_extended && isDraggingShape()) { // which does not go on in this one
        m_pointer.endDrag();
        m_pointer.buttons = Qt::NoButton;
    }
    m_layer.setImage(image);
    m_layer.reloadColourTable();
    m_selection.clipTo(m_layer.rect());
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
    if (m_colours.imageType != Offset16)
        return;
    const int base = CanvasColours::baseOf(offset);
    m_layer.moveToGroup(base);
    m_colours.moveToBank(base);
    update();
}

void Canvas::pickInk(int index)
{
    setInk(index);
    emit foregroundPicked(index);
}

void Canvas::pickPaper(int index)
{
    setPaper(index);
    emit backgroundPicked(index);
}

// ---- Edits ----------------------------------------------------------------------------------

void Canvas::beginEdit()
{
    finishStroke();
    m_edit.begin(image(), tr("Draw"));
}

void Canvas::startOver()
{
    m_layer.paste(m_edit.before(), QPoint());
}

void Canvas::finishStroke()
{
    if (!isEditing())
        return;
    m_grab.reset();
    emit imageChanged();
    finishEdit(m_edit.text(), PixelEditCommand::None);
}

bool Canvas::isDraggingShape() const
{
    return m_tools.tool().hasPreview() && m_pointer.pressed != CanvasPointer::Nowhere;
}

void Canvas::dropStroke()
{
    if (!isDrawing())
        return;
    if (isEditing())
        startOver();
    m_edit.giveUp();
    if (const auto grab = std::exchange(m_grab, std::nullopt)) {
        m_floating = grab->floating;
        select(grab->selection);
    }
    m_pointer.endDrag();
    m_pointer.buttons = Qt::NoButton;
    update();
    emit strokeDropped();
}

void Canvas::endLostDrag()
{
    finishStroke();
    dropStroke(); // a shape, which is drawn when it ends
    m_selection.clearAnchor();
    m_pointer.buttons = Qt::NoButton;
}

void Canvas::finishEdit(const QString &text, PixelEditCommand::Kind kind)
{
    const QImage before = m_edit.end(image());
    if (!before.isNull())
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

// ---- Modes ----------------------------------------------------------------------------------

void Canvas::chooseTool(ToolButton mode)
{
    // A drag does not go on in another tool.
    finishStroke();
    if (m_extended)
        dropStroke();
    m_pointer.buttons = Qt::NoButton;
    m_tools.choose(mode);
    emit modeChanged(mode);
}

void Canvas::setMode(ToolButton mode, bool checked)
{
    if (mode == Cut || mode == Copy) {
        m_clipboard->copyToClipboard();
        if (mode == Cut)
            eraseSelection();
        hideSelection();
        update();
        return;
    }

    selectNone();
    if (const auto action = LayerAction::of(mode))
        applyEdit(action->text, action->kind, action->run);
    else if (mode == Paste)
        m_clipboard->pasteFromClipboard();
    else if (m_tools.has(mode))
        chooseTool(mode);
    else if (mode == Grid)
        m_overlay.checker = checked;
    else if (mode == ZoomIn)
        setZoomLevel(m_geometry.zoom + CanvasGeometry::ZoomStep);
    else if (mode == ZoomOut)
        setZoomLevel(m_geometry.zoom - CanvasGeometry::ZoomStep);
    else
        qInfo().noquote().nospace() << "PaintCanvas::setMode(" << QMetaEnum::fromType<ToolButton>().valueToKey(mode)
                                    << ")";
    update();
}

// ---- Layout ---------------------------------------------------------------------------------

void Canvas::relayout(const std::function<void(CanvasGeometry &)> &change)
{
    const QPoint scroll = m_geometry.scroll;
    if (change)
        change(m_geometry);
    m_geometry.layout(size(), image().size());
    const QSize overflow = m_geometry.overflow(size(), image().size());
    emit scrollValuesChanged(overflow.width(), overflow.height());
    if (m_geometry.scroll != scroll)
        emit scrollPositionChanged(m_geometry.scroll);
    placeBand();
    updateGeometry();
    update();
}

void Canvas::resizeEvent(QResizeEvent *)
{
    relayout();
}

void Canvas::scrollTo(QPoint position)
{
    m_geometry.scroll = position;
    placeBand();
    update();
}

void Canvas::scrollBy(QPoint delta)
{
    scrollTo(m_geometry.scrolled(delta, image().size()));
    emit scrollPositionChanged(m_geometry.scroll);
}
