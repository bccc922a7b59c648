#include "editors/canvas/pixelediting.h"

#include "editors/canvas/canvas.h"
#include "model/palette.h"
#include "ui/toolpalette.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QStatusTipEvent>
#include <QUndoStack>
#include <QWidget>

void PixelEditing::push(QUndoStack *stack, const QString &text, const QImage &before, const QImage &after,
                        PixelEditCommand::Apply apply, const QVariant &mergeKey, PixelEditCommand::Kind kind)
{
    if (stack)
        stack->push(new PixelEditCommand(text, before, after, std::move(apply), mergeKey, kind));
}

QString PixelEditing::mergeKey(const QUuid &asset, int index)
{
    return QStringLiteral("%1:%2").arg(asset.toString()).arg(index);
}

void PixelEditing::showPixel(QWidget *editor, QPoint pixel, int index, const Palette *palette)
{
    QString text;
    if (index >= 0) {
        text =
            QCoreApplication::translate("PixelEditing", "%1, %2  colour %3").arg(pixel.x()).arg(pixel.y()).arg(index);
        if (palette)
            text += QStringLiteral("  %1").arg(QColor(palette->colourTable().at(index)).name());
    }
    // The main window around the editor shows status tips in its status bar.
    QStatusTipEvent tip(text);
    QCoreApplication::sendEvent(editor, &tip);
}

void PixelEditing::addTools(ToolPalette *tools, const QList<Quenmora::Ui::ToolButton> &more)
{
    using namespace Quenmora::Ui;
    for (const ToolButton button : {Draw, Line, Rectangle, RectangleFill, Circle, Fill, Pick, Select})
        tools->addEntry(button);
    // While something is being pasted, pasting is the tool in use.
    ToolPalette::Entry paste = ToolPalette::entryOf(Paste);
    paste.kind = ToolPalette::Tool;
    tools->addEntry(paste);
    for (const ToolButton button : {Grid, ZoomIn, ZoomOut, Flip, Mirror, MoveUp, MoveDown, MoveLeft, MoveRight})
        tools->addEntry(button);
    for (const ToolButton button : more)
        tools->addEntry(button);
}

void PixelEditing::connectTools(ToolPalette *tools, Canvas *canvas)
{
    QObject::connect(canvas, &Canvas::modeChanged, tools, &ToolPalette::setMode);
    // A paste that is refused leaves the tool as it was, and the palette must not say otherwise.
    QObject::connect(tools, &ToolPalette::actionActivated, canvas, [tools, canvas] { tools->setMode(canvas->mode()); });
    tools->setMode(canvas->mode());
}

void PixelEditing::addSwapAction(QWidget *editor, Canvas *canvas)
{
    auto *swap = new QAction(QCoreApplication::translate("PixelEditing", "Swap foreground and background"), editor);
    swap->setShortcut(Qt::Key_X);
    swap->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(swap, &QAction::triggered, canvas, &Canvas::swapInkAndPaper);
    editor->addAction(swap);
}

void PixelEditing::scrollByShortcutOverride(Canvas *canvas, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && canvas->isEnabled() && !canvas->hasFocus())
        canvas->scrollByKey(static_cast<QKeyEvent *>(event));
}
