#pragma once

#include "model/terrain.h"
#include "model/tileset.h"

#include <QPointer>
#include <QWidget>

#include <optional>

namespace MapEditor {

/// The tiles of a set, on which the marks of a terrain are made: each tile has nine fields, the middle one for being of
/// the terrain, the others for the neighbours towards which it goes on. The left button marks, the right one takes
/// marks away; dragging does it to all fields on the way. So do Space and Shift+Space.
class TerrainMarks : public QWidget
{
    Q_OBJECT

public:
    explicit TerrainMarks(QWidget *parent = nullptr);

    void show(const QPointer<TileSet> &tileSet, const Terrain &terrain);
    [[nodiscard]] const Terrain &terrain() const { return m_terrain; }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    [[nodiscard]] QRect tileRect(int index) const;

    // The same as a table of fields, three by three for each tile.
    [[nodiscard]] QSize fieldTable() const;
    /// The tile of a field, which the set may not have.
    [[nodiscard]] int tileOf(QPoint field) const;
    [[nodiscard]] QRect fieldArea(QPoint field) const;
    [[nodiscard]] QPoint fieldAt(QPoint point) const;
    [[nodiscard]] bool hasTile(int index) const { return m_tileSet && index >= 0 && index < m_tileSet->count(); }
    [[nodiscard]] QString textOf(QPoint field) const;

signals:
    void edited();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void markAt(QPoint point);
    void paintMarks(QPainter &painter, const QRect &tile, int marks) const;
    [[nodiscard]] int columns(int width) const;

    QPointer<TileSet> m_tileSet;
    Terrain m_terrain;
    std::optional<bool> m_marking; ///< while a button is held: marks or takes away
};

} // namespace MapEditor
