#include "editors/canvas/pixeleditor.h"

#include "editors/canvas/canvas.h"
#include "editors/canvas/canvaskeys.h"
#include "editors/canvas/paintoptionsbar.h"
#include "editors/canvas/palettenotice.h"
#include "model/palette.h"
#include "ui/commands.h"
#include "ui/emptyhint.h"
#include "ui/svgiconengine.h"
#include "ui/toolpalette.h"
#include "undo/paletteorder.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QStatusTipEvent>
#include <QTimer>
#include <QUndoStack>
#include <QVBoxLayout>

#include <cstring>

using namespace Quenmora::Ui;

namespace {

const QString Place = QStringLiteral("pixels"); ///< where the commands of all pixel editors belong

void makeCommand(QAction *action, const QString &name)
{
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    Commands::add(action, Place + u'.' + name);
}

/// Tells the pixel under the pointer in the status line of the window around page; a negative index clears it.
void showPixel(QWidget *page, const Palette *palette, QPoint pixel, int index)
{
    QString text;
    if (index >= 0) {
        text = QCoreApplication::translate("PixelEditor", "%1, %2  colour %3").arg(pixel.x()).arg(pixel.y()).arg(index);
        if (palette)
            text += QStringLiteral("  %1").arg(QColor(palette->colourTable().at(index)).name());
    }
    // The main window shows status tips in its status bar.
    QStatusTipEvent tip(text);
    QCoreApplication::sendEvent(page, &tip);
}

} // namespace

PixelEditor::PixelEditor(QSize imageSize, Qt::Orientation toolPalette, const QList<ToolButton> &more)
    : m_canvas(new Canvas(imageSize))
    , m_tools(new ToolPalette(toolPalette))
    , m_optionsBar(new PaintOptionsBar)
{
    new PaletteNotice(m_canvas);
    m_canvas->setClickDeselects(true);
    m_canvas->setExtended(true);
    new CanvasKeys(m_canvas); // which is its child
    setPaintSettings(new PaintSettings(m_canvas));
    addMenuEntries();
    addTools(more);
}

void PixelEditor::addTools(const QList<ToolButton> &more)
{
    // those of the map editor, where it has the tool; the arrows by themselves scroll the picture
    const QHash<ToolButton, QList<QKeySequence>> keys{
        {Draw, {Qt::Key_D}},
        {Line, {Qt::Key_L}},
        {Rectangle, {Qt::Key_R}},
        {RectangleFill, {Qt::SHIFT | Qt::Key_R}},
        {Circle, {Qt::Key_E}},
        {CircleFill, {Qt::SHIFT | Qt::Key_E}},
        {Fill, {Qt::Key_F}},
        {Pick, {Qt::Key_P}},
        {Select, {Qt::Key_S}},
        {Grid, {Qt::Key_G}},
        {ZoomIn, {Qt::Key_Equal, Qt::Key_Plus}},
        {ZoomOut, {Qt::Key_Minus}},
        {Flip, {Qt::SHIFT | Qt::Key_F}},
        {Mirror, {Qt::SHIFT | Qt::Key_M}},
        {RotateCW, {Qt::CTRL | Qt::Key_R}},
        {RotateCCW, {Qt::CTRL | Qt::SHIFT | Qt::Key_R}},
    };
    const auto add = [this, &keys](ToolPalette::Entry entry) {
        entry.shortcuts = keys.value(entry.button);
        m_tools->addEntry(entry);
    };
    m_tools->nameCommands(Place);
    for (const ToolButton button : {Draw, Line, Rectangle, RectangleFill, Circle, CircleFill, Fill, Pick, Select})
        add(ToolPalette::entryOf(button));
    // While something is being pasted, pasting is the tool in use.
    ToolPalette::Entry paste = ToolPalette::entryOf(Paste);
    paste.kind = ToolPalette::Tool;
    add(paste);
    for (const ToolButton button : {Grid, ZoomIn, ZoomOut, Flip, Mirror, MoveUp, MoveDown, MoveLeft, MoveRight})
        add(ToolPalette::entryOf(button));
    for (const ToolButton button : more)
        add(ToolPalette::entryOf(button));
}

QAction *PixelEditor::addOption(QWidget *page, const QString &name, const QString &icon, const QString &text,
                                const QString &toolTip)
{
    auto *action = new QAction(themedIcon(icon), text, page);
    action->setCheckable(true);
    action->setToolTip(toolTip);
    action->setStatusTip(toolTip);
    m_optionsBar->addButton(action);
    makeCommand(action, name);
    (m_keys ? m_keys.data() : m_tools)->addAction(action); // whose actions the page gets with all others
    return action;
}

void PixelEditor::offerPreviews(QWidget *page, const QList<std::pair<QString, PreviewWindow::Source>> &sources)
{
    QAction *action = addOption(page, QStringLiteral("preview"), QStringLiteral(":/Preview"),
                                QCoreApplication::translate("PixelEditor", "Preview"),
                                QCoreApplication::translate("PixelEditor", "Show how the picture will look"));
    QObject::connect(action, &QAction::toggled, m_canvas,
                     [this, action, sources, window = QPointer<PreviewWindow>()](bool on) mutable {
                         if (!window) {
                             window = new PreviewWindow(m_canvas);
                             for (const auto &[name, source] : sources)
                                 window->addSource(name, source);
                             QObject::connect(window, &PreviewWindow::closed, action,
                                              [action] { action->setChecked(false); });
                         }
                         window->setVisible(on);
                     });
}

QLayout *PixelEditor::toolRows() const
{
    auto *rows = new QVBoxLayout;
    rows->setSpacing(0);
    rows->addWidget(m_tools);
    rows->addWidget(m_optionsBar);
    return rows;
}

void PixelEditor::connectCanvas(QWidget *page)
{
    addKeys(page);
    QObject::connect(m_canvas, &Canvas::modeChanged, m_tools, &ToolPalette::setMode);
    // A paste that is refused leaves the tool as it was, and the palette must not say otherwise.
    QObject::connect(m_tools, &ToolPalette::actionActivated, m_canvas,
                     [tools = m_tools, canvas = m_canvas] { tools->setMode(canvas->mode()); });
    m_tools->setMode(m_canvas->mode());
    followStrokes();

    QObject::connect(m_canvas, &Canvas::pixelHovered, page, [page, canvas = m_canvas](QPoint pixel, int index) {
        showPixel(page, canvas->palette(), pixel, index);
    });
}

void PixelEditor::addKeys(QWidget *page)
{
    page->addActions(m_tools->actions());
    m_keys = page;
    const QList<QAction *> entries = m_canvas->contextMenu()->actions();
    for (QAction *entry : entries) {
        if (entry->objectName().startsWith(Place)) // not what the Edit menu has keys for
            page->addAction(entry);
    }
    const auto add = [this, page](const QString &name, Qt::Key key, const QString &text,
                                  const std::function<void()> &run) {
        auto *action = new QAction(text, page);
        action->setShortcut(key);
        QObject::connect(action, &QAction::triggered, m_canvas, run);
        makeCommand(action, name);
        page->addAction(action);
    };
    add(QStringLiteral("swapColours"), Qt::Key_X,
        QCoreApplication::translate("PixelEditor", "Swap foreground and background"),
        [this] { m_canvas->swapInkAndPaper(); });
    add(QStringLiteral("smallerBrush"), Qt::Key_BracketLeft,
        QCoreApplication::translate("PixelEditor", "Smaller brush"),
        [this] { m_settings->setBrushSize(m_settings->brushSize() - 1); });
    add(QStringLiteral("largerBrush"), Qt::Key_BracketRight, QCoreApplication::translate("PixelEditor", "Larger brush"),
        [this] { m_settings->setBrushSize(m_settings->brushSize() + 1); });
}

void PixelEditor::followStrokes()
{
    constexpr int Interval = 30; // ms: what shows the picture may be a whole map
    auto *soon = new QTimer(m_canvas);
    soon->setSingleShot(true);
    soon->setInterval(Interval);
    QObject::connect(m_canvas, &Canvas::strokeDrawn, soon, [soon] {
        if (!soon->isActive())
            soon->start();
    });
    QObject::connect(soon, &QTimer::timeout, m_canvas, [this] {
        if (!m_canvas->isDrawing())
            return;
        showStroke(m_canvas->drawnImage());
        m_canvas->update(); // which the preview follows
    });
    QObject::connect(m_canvas, &Canvas::strokeDropped, m_canvas, [this] { showStroke({}); });
}

void PixelEditor::sayNextStep(const QString &text, const std::function<bool()> &isBlank)
{
    // at the bottom, where it leaves most of the picture to be seen
    const auto wanted = [canvas = m_canvas, text, isBlank] {
        return canvas->palette() && isBlank() ? text : QString(); // without a palette that is what to begin with
    };
    new EmptyHint(m_canvas, wanted, Qt::AlignHCenter | Qt::AlignBottom);
}

bool PixelEditor::isBlank(const QImage &pixels)
{
    for (int y = 0; y < pixels.height(); ++y) {
        const uchar *line = pixels.constScanLine(y);
        if (line[0] != *pixels.constBits() || std::memcmp(line, line + 1, size_t(pixels.width() - 1)) != 0)
            return false;
    }
    return true;
}

void PixelEditor::setPaintSettings(PaintSettings *settings)
{
    if (m_settings)
        m_settings->disconnect(m_canvas);
    m_optionsBar->setSettings(settings);
    if (m_settings && m_settings->parent() == m_canvas)
        delete m_settings;
    m_settings = settings;
    const auto follow = [canvas = m_canvas, settings] { canvas->setPaintOptions(settings->options()); };
    QObject::connect(settings, &PaintSettings::changed, m_canvas, follow);
    follow();
}

void PixelEditor::addMenuEntry(const QString &name, const QString &icon, const QString &text, const QString &toolTip,
                               const std::function<void()> &run)
{
    QAction *action = m_canvas->contextMenu()->addAction(themedIcon(icon), text);
    action->setToolTip(toolTip);
    action->setStatusTip(toolTip);
    QObject::connect(action, &QAction::triggered, m_canvas, run);
    makeCommand(action, name);
    if (m_keys)
        m_keys->addAction(action);
}

void PixelEditor::addMenuEntries()
{
    m_canvas->contextMenu()->addSeparator();
    addMenuEntry(QStringLiteral("replaceColour"), QStringLiteral(":/ReplaceColour"),
                 QCoreApplication::translate("PixelEditor", "Replace Colour"),
                 QCoreApplication::translate(
                     "PixelEditor",
                     "Gives pixels of the background colour the foreground colour, in the selection if there is one"),
                 [this] { replaceColour(); });
    addMenuEntry(QStringLiteral("brushFromSelection"), QStringLiteral(":/PictureBrush"),
                 QCoreApplication::translate("PixelEditor", "Brush from Selection"),
                 QCoreApplication::translate(
                     "PixelEditor", "Draws with what is selected, without its pixels of the background colour"),
                 [this] { takeBrush(); });
}

void PixelEditor::replaceColour()
{
    const QRect area = m_canvas->hasSelection() ? m_canvas->selection() : m_canvas->image().rect();
    m_canvas->applyEdit(QCoreApplication::translate("PixelEditor", "Replace Colour"), PixelEditCommand::None,
                        [this, area](Layer2Image &layer) { replaceColourIn(layer, area); });
}

void PixelEditor::replaceColourIn(Layer2Image &layer, const QRect &area) const
{
    // of 16 colours, only the place in the group counts
    const int mask = m_canvas->imageType() == Offset16 ? 0x0F : 0xFF;
    layer.replaceIndex(area, m_canvas->paper(), m_canvas->ink(), mask);
}

QImage PixelEditor::withColourReplaced(const QImage &picture) const
{
    Layer2Image layer(QSize(1, 1));
    layer.setImage(picture);
    replaceColourIn(layer, layer.rect());
    return layer.image();
}

void PixelEditor::takeBrush()
{
    if (!m_canvas->hasSelection())
        return;
    m_settings->setBrush(Brush::of(m_canvas->image().copy(m_canvas->selection()), m_canvas->paper()));
    m_canvas->setMode(Draw);
}

void PixelEditor::load(const QImage &pixels)
{
    const QScopedValueRollback loading(m_loading, true);
    m_canvas->setImage(pixels);
}

void PixelEditor::push(QUndoStack *stack, const QString &text, const QImage &before, const QImage &after,
                       const PixelEditCommand::Apply &apply, const QVariant &mergeKey,
                       PixelEditCommand::Kind kind) const
{
    if (!stack)
        return;
    const QPointer<Palette> palette = m_canvas->palette();
    const PaletteOrder made = palette ? PaletteHistory::of(*palette).order() : PaletteOrder();
    // the entries of the palette may have changed places by then
    const auto applyNow = [apply, palette, made](const QImage &pixels) {
        const PaletteOrder now = palette ? PaletteHistory::of(*palette).order() : made;
        apply(PaletteOrder::since(made, now).in(pixels));
    };
    // and what was done before that is no part of what is done since
    const QVariant key = made.changesNothing() ? mergeKey : QVariant(QVariantList{mergeKey, made.asBytes()});
    stack->push(new PixelEditCommand(text, before, after, applyNow, key, kind));
}

QString PixelEditor::mergeKey(const QUuid &asset, int index)
{
    return QStringLiteral("%1:%2").arg(asset.toString()).arg(index);
}

void PixelEditor::scrollByShortcutOverride(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && m_canvas->isEnabled() && !m_canvas->hasFocus())
        m_canvas->scrollByKey(static_cast<QKeyEvent *>(event));
}

void PixelEditor::cut()
{
    m_canvas->cut();
}

void PixelEditor::copy()
{
    m_canvas->copy();
}

void PixelEditor::paste()
{
    m_canvas->paste();
}

void PixelEditor::selectAll()
{
    m_canvas->selectAll();
}

void PixelEditor::selectNone()
{
    m_canvas->selectNone();
}
