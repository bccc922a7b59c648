#include "editors/canvas/pixeleditor.h"

#include "editors/canvas/canvas.h"
#include "editors/canvas/palettenotice.h"
#include "model/palette.h"
#include "ui/toolpalette.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStatusTipEvent>
#include <QUndoStack>

using namespace Quenmora::Ui;

namespace {

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
{
    new PaletteNotice(m_canvas);
    m_canvas->setClickDeselects(true);
    for (const ToolButton button : {Draw, Line, Rectangle, RectangleFill, Circle, Fill, Pick, Select})
        m_tools->addEntry(button);
    // While something is being pasted, pasting is the tool in use.
    ToolPalette::Entry paste = ToolPalette::entryOf(Paste);
    paste.kind = ToolPalette::Tool;
    m_tools->addEntry(paste);
    for (const ToolButton button : {Grid, ZoomIn, ZoomOut, Flip, Mirror, MoveUp, MoveDown, MoveLeft, MoveRight})
        m_tools->addEntry(button);
    for (const ToolButton button : more)
        m_tools->addEntry(button);
}

void PixelEditor::connectCanvas(QWidget *page)
{
    QObject::connect(m_canvas, &Canvas::modeChanged, m_tools, &ToolPalette::setMode);
    // A paste that is refused leaves the tool as it was, and the palette must not say otherwise.
    QObject::connect(m_tools, &ToolPalette::actionActivated, m_canvas,
                     [tools = m_tools, canvas = m_canvas] { tools->setMode(canvas->mode()); });
    m_tools->setMode(m_canvas->mode());

    QObject::connect(m_canvas, &Canvas::pixelHovered, page, [page, canvas = m_canvas](QPoint pixel, int index) {
        showPixel(page, canvas->palette(), pixel, index);
    });

    auto *swap = new QAction(QCoreApplication::translate("PixelEditor", "Swap foreground and background"), page);
    swap->setShortcut(Qt::Key_X);
    swap->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(swap, &QAction::triggered, m_canvas, &Canvas::swapInkAndPaper);
    page->addAction(swap);
}

void PixelEditor::load(const QImage &pixels)
{
    const QScopedValueRollback loading(m_loading, true);
    m_canvas->setImage(pixels);
}

void PixelEditor::push(QUndoStack *stack, const QString &text, const QImage &before, const QImage &after,
                       PixelEditCommand::Apply apply, const QVariant &mergeKey, PixelEditCommand::Kind kind)
{
    if (stack)
        stack->push(new PixelEditCommand(text, before, after, std::move(apply), mergeKey, kind));
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
