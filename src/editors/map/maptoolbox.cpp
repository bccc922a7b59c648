#include "editors/map/maptoolbox.h"

#include "editors/map/drawtool.h"
#include "editors/map/filltool.h"
#include "editors/map/pastetool.h"
#include "editors/map/picktool.h"
#include "editors/map/placeanimationtool.h"
#include "editors/map/placespritetool.h"
#include "editors/map/selecttool.h"
#include "editors/map/shapetool.h"
#include "editors/map/terraintool.h"

#include <QDebug>
#include <QMetaEnum>

#include <utility>

using namespace Quenmora::Ui;

namespace MapEditor {

MapToolBox::MapToolBox(MapSurface *surface)
{
    add<DrawTool>(surface);
    add<SelectTool>(surface);
    add<PasteTool>(surface);
    add<PickTool>(surface);
    add<PlaceAnimationTool>(surface);
    add<PlaceSpriteTool>(surface);
    m_tool = m_tools.value(m_mode);
}

void MapToolBox::addPaintTools(MapSurface *surface)
{
    add<FillTool>(surface);
    add<TerrainTool>(surface);
    for (const ToolButton shape : {Line, Rectangle, RectangleFill, Circle, CircleFill})
        add<ShapeTool>(surface, shape);
}

template <typename Tool, typename... Arguments>
void MapToolBox::add(MapSurface *surface, Arguments... arguments)
{
    const auto tool = std::make_shared<Tool>(surface, arguments...);
    m_tools.insert(tool->mode(), tool);
}

void MapToolBox::setMode(ToolButton mode)
{
    m_savedMode = std::exchange(m_mode, mode);
}

bool MapToolBox::activate()
{
    if (const auto tool = m_tools.value(m_mode)) {
        m_tool = tool;
        return tool->activate() || m_savedMode == Paste; // which was entered only while it could paste
    }
    qInfo().noquote().nospace() << "MapWidget::setMode(" << QMetaEnum::fromType<ToolButton>().valueToKey(m_mode) << ")";
    qInfo("Unhandled switch case");
    return true;
}

} // namespace MapEditor
