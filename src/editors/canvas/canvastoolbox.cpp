#include "editors/canvas/canvastoolbox.h"

#include "editors/canvas/circlecanvastool.h"
#include "editors/canvas/drawcanvastool.h"
#include "editors/canvas/fillcanvastool.h"
#include "editors/canvas/linecanvastool.h"
#include "editors/canvas/pastecanvastool.h"
#include "editors/canvas/pickcanvastool.h"
#include "editors/canvas/rectanglecanvastool.h"
#include "editors/canvas/selectcanvastool.h"

using namespace Quenmora::Ui;

CanvasToolBox::CanvasToolBox(CanvasSurface *surface)
    : m_tools{
        {Draw, std::make_shared<DrawCanvasTool>(surface)},
        {Select, std::make_shared<SelectCanvasTool>(surface)},
        {Rectangle, std::make_shared<RectangleCanvasTool>(surface, false)},
        {RectangleFill, std::make_shared<RectangleCanvasTool>(surface, true)},
        {Line, std::make_shared<LineCanvasTool>(surface)},
        {Circle, std::make_shared<CircleCanvasTool>(surface)},
        {Fill, std::make_shared<FillCanvasTool>(surface)},
        {Pick, std::make_shared<PickCanvasTool>(surface)},
        {Paste, std::make_shared<PasteCanvasTool>(surface)},
    }
    , m_tool(m_tools.value(m_mode).get())
{ }

void CanvasToolBox::addFilledCircle(CanvasSurface *surface)
{
    m_tools.insert(CircleFill, std::make_shared<CircleCanvasTool>(surface, true));
}

void CanvasToolBox::choose(ToolButton mode)
{
    m_mode = mode;
    m_tool = m_tools.value(mode).get();
    m_tool->activate();
}
