#pragma once

class QToolButton;

namespace MapEditor {

class View;

/// Makes the parts of a map editor, lays them out and connects them.
class ViewBuilder
{
public:
    explicit ViewBuilder(View &view) : m_view(view) { }

    /// To be called once, on a view without parts.
    void build();

private:
    void makeParts();
    void layOut();
    QToolButton *makeMapMenu();
    void addKeys();
    void addSizeCommands();
    void connectGrid();
    void connectScrollBars();
    void connectPopover();
    void connectExport();

    View &m_view;
};

} // namespace MapEditor
