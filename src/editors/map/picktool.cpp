#include "editors/map/picktool.h"

#include "editors/map/mapgrid.h"

#include <QMouseEvent>

namespace MapEditor {

bool PickTool::activate()
{
    const Quenmora::Ui::ToolButton before = grid()->savedMode();
    const bool refused = before == Quenmora::Ui::Paste && grid()->pasteArea().isEmpty(); // while picking
    if (before != mode() && !refused)
        m_modeBefore = before;
    grid()->setCursor(QCursor(QPixmap(QStringLiteral(":/PickerCursor")), 5, 28));
    return true;
}

void PickTool::mouseReleased(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    grid()->pickTileAt(event->position().toPoint());
    grid()->setMode(m_modeBefore);
}

} // namespace MapEditor
