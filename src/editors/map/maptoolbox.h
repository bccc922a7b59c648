#pragma once

#include "editors/map/maptool.h"
#include "ui/enums.h"

#include <QHash>

#include <memory>

namespace MapEditor {

class MapSurface;

/// The tools of a map editor, the one in hand, and the mode before it.
class MapToolBox
{
public:
    explicit MapToolBox(MapSurface *surface);

    /// Adds the tools that not every grid has.
    void addPaintTools(MapSurface *surface);

    [[nodiscard]] MapTool *tool() const { return m_tool.get(); }
    [[nodiscard]] Quenmora::Ui::ToolButton mode() const { return m_mode; }
    [[nodiscard]] Quenmora::Ui::ToolButton savedMode() const { return m_savedMode; }
    void setMode(Quenmora::Ui::ToolButton mode);
    /// Takes the mode for the one before.
    void saveMode() { m_savedMode = m_mode; }
    /// Takes the tool of the mode in hand, if there is one. False when it refuses and the mode before is to be
    /// taken up again.
    [[nodiscard]] bool activate();

private:
    template <typename Tool, typename... Arguments>
    void add(MapSurface *surface, Arguments... arguments);

    QHash<Quenmora::Ui::ToolButton, std::shared_ptr<MapTool>> m_tools;
    std::shared_ptr<MapTool> m_tool;
    Quenmora::Ui::ToolButton m_mode = Quenmora::Ui::Draw;
    Quenmora::Ui::ToolButton m_savedMode = Quenmora::Ui::Draw;
};

} // namespace MapEditor
