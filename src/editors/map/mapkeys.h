#pragma once

#include "ui/keycursor.h"

namespace MapEditor {

class MapGrid;

/// Paints a map with the keyboard, and tells of its cells.
class MapKeys : public KeyCursor
{
    Q_OBJECT

public:
    /// A child of the grid.
    explicit MapKeys(MapGrid *grid);

    [[nodiscard]] QSize size() const override;
    [[nodiscard]] QRect area(QPoint cell) const override;
    [[nodiscard]] QPoint cellAt(QPoint point) const override;
    [[nodiscard]] QString text(QPoint cell) const override;
    [[nodiscard]] QRect selected() const override;
    [[nodiscard]] bool isSelected(QPoint cell) const override;

protected:
    [[nodiscard]] QRect visibleCells() const override;
    void scrollTo(QPoint first) override;
    [[nodiscard]] QPoint pointOf(QPoint cell) const override;
    void pick(QPoint cell, bool other) override;
    void select(const QRect &cells) override;
    void selectNone() override;
    [[nodiscard]] bool selectsFrom(QPoint cell) const override;
    void openMenu(QPoint globalPosition) override;

private:
    MapGrid *const m_grid;
};

} // namespace MapEditor
