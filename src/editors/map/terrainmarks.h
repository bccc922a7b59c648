#pragma once

#include "model/terrain.h"
#include "model/tileset.h"

#include <QPointer>
#include <QWidget>

#include <optional>

namespace MapEditor {

/// The tiles of a set, on which the marks of a terrain are made: each tile has nine fields, the middle one for being of
/// the terrain, the others for the neighbours towards which it goes on. The left button marks, the right one takes
/// marks away; dragging does it to all fields on the way.
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
