#pragma once

#include "model/map.h"
#include "model/spritebank.h"
#include "ui/enums.h"

#include <QList>
#include <QPointer>
#include <QRect>
#include <QString>

class QCursor;

namespace MapEditor {

struct MapBrush;
struct MapPointer;
struct MapSelection;
struct MapViewport;

/// What a tool sees of the editor in which it is used, and what it may do there. Areas are in cells of the map,
/// unless told otherwise.
class MapSurface
{
public:
    virtual ~MapSurface();

    // What is edited, and what with.
    virtual const QPointer<Map> &map() const = 0; ///< null when none is shown
    virtual const QList<QPointer<SpriteBank>> &spriteBanks() const = 0;
    virtual const MapViewport &viewport() const = 0;
    virtual const MapBrush &brush() const = 0;
    virtual qint64 spriteTicks() const = 0;
    /// What a tool finds under the pointer is noted here.
    virtual MapPointer &pointer() = 0;

    virtual QRect selection() const = 0;
    virtual void setSelection(const QRect &cells) = 0;
    /// The selected cells, which need not be a rectangle.
    virtual const MapSelection &selected() const = 0;
    /// Whether they can be moved.
    virtual bool canMoveSelection() const = 0;
    virtual void moveSelection(QPoint by, bool copies) = 0;
    /// The placed sprite that is selected, or -1 for none.
    virtual void selectSprite(int index) = 0;
    /// Where the paste tool pastes, or what was copied last.
    virtual QRect pasteArea() const = 0;
    virtual void setPasteArea(const QRect &cells) = 0;

    /// Whether the clipboard's pictures are pasted, which adds tiles to the map's tile set: somebody else records that.
    virtual bool pastesPictures() const = 0;
    /// Tells the user something, without asking for an answer.
    virtual void tell(const QString &text) = 0;

    // Edits may be nested; the outermost one becomes the undo step.
    virtual void beginEdit() = 0;
    virtual void endEdit(const QString &text) = 0;

    /// The mode before, or at the last press.
    virtual Quenmora::Ui::ToolButton savedMode() const = 0;
    virtual void setMode(Quenmora::Ui::ToolButton mode) = 0;
    /// The cell of the tile layer under a point of the widget is picked; nothing outside the map.
    virtual void pickTileAt(QPoint point) = 0;
    /// An area of the tile layer becomes what is painted.
    virtual void pickStamp(const QRect &cells) = 0;
    /// A placed sprite was clicked, not dragged.
    virtual void clickSprite(int index) = 0;

    /// Shows what changed.
    virtual void repaintSoon() = 0;
    virtual void showCursor(const QCursor &cursor) = 0;
    /// Shows the tool's own cursor, or that it is of no use now.
    virtual void refreshCursor() = 0;
    /// An area of the widget.
    virtual void showRubberBand(const QRect &area) = 0;
    virtual void hideRubberBand() = 0;
    virtual void showContextMenu(QPoint globalPosition) = 0;
};

} // namespace MapEditor
