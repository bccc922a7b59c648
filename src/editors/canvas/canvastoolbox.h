#pragma once

#include "ui/enums.h"

#include <QHash>

#include <memory>

class CanvasSurface;
class CanvasTool;

/// The tools of a canvas, one of which is in use.
class CanvasToolBox
{
public:
    /// Starts with the draw tool, which is not activated yet.
    explicit CanvasToolBox(CanvasSurface *surface);

    /// The one tool that a canvas does not have by itself.
    void addFilledCircle(CanvasSurface *surface);

    bool has(Quenmora::Ui::ToolButton mode) const { return m_tools.contains(mode); }
    Quenmora::Ui::ToolButton mode() const { return m_mode; }
    CanvasTool &tool() const { return *m_tool; }
    /// Takes another tool, which must be there.
    void choose(Quenmora::Ui::ToolButton mode);

private:
    QHash<Quenmora::Ui::ToolButton, std::shared_ptr<CanvasTool>> m_tools;
    Quenmora::Ui::ToolButton m_mode = Quenmora::Ui::Draw;
    CanvasTool *m_tool;
};
