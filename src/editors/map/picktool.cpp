#include "editors/map/picktool.h"

#include <QMouseEvent>

namespace MapEditor {

bool PickTool::activate()
{
    const Quenmora::Ui::ToolButton before = surface()->savedMode();
    const bool refused = before == Quenmora::Ui::Paste && surface()->pasteArea().isEmpty(); // while picking
    if (before != mode() && !refused)
        m_modeBefore = before;
    surface()->showCursor(QCursor(QPixmap(QStringLiteral(":/PickerCursor")), 5, 28));
    return true;
}

void PickTool::mouseReleased(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    surface()->pickTileAt(event->position().toPoint());
    surface()->setMode(m_modeBefore);
}

} // namespace MapEditor
