#pragma once

#include "ui/enums.h"
#include "undo/pixeleditcommand.h"

#include <QList>
#include <QUuid>

class Canvas;
class Palette;
class QEvent;
class QUndoStack;
class QWidget;
class ToolPalette;

/// What the tile, sprite and image editors share around their canvas.
namespace PixelEditing {

/// Pushes a finished edit onto a stack; without a stack the edit stays applied and is not recorded.
void push(QUndoStack *stack, const QString &text, const QImage &before, const QImage &after,
          PixelEditCommand::Apply apply, const QVariant &mergeKey, PixelEditCommand::Kind kind);

/// Names an element of an asset for merging: steps of one tile or sprite merge, those of two do not.
[[nodiscard]] QString mergeKey(const QUuid &asset, int index);

/// Tells the pixel under the pointer, its index and its colour in the window's status line; a negative
/// index clears it.
void showPixel(QWidget *editor, QPoint pixel, int index, const Palette *palette);

/// Gives a tool palette the tools and actions of every canvas, and more after them.
void addTools(ToolPalette *tools, const QList<Quenmora::Ui::ToolButton> &more);

/// Lets a tool palette choose the canvas's tools, and show the one in use, the paste tool included.
void connectTools(ToolPalette *tools, Canvas *canvas);

/// Lets X exchange the canvas's two colours while the keyboard is in editor.
void addSwapAction(QWidget *editor, Canvas *canvas);

/// Scrolls the canvas when event is an arrow key on its way past it. A canvas that has the keyboard
/// scrolls by the key press that follows, and is left alone here.
void scrollByShortcutOverride(Canvas *canvas, QEvent *event);

} // namespace PixelEditing
