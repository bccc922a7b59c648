#pragma once

#include "editors/canvas/cellgrid.h"
#include "editors/common/dragdata.h"
#include "model/tileset.h"

#include <QActionGroup>
#include <QPointer>

#include <optional>

/// All tiles of a tile set in rows that fill the widget's width: one is selected, tiles are dragged to
/// other places, and a context menu edits the list.
class TilePickerGrid : public CellGrid
{
    Q_OBJECT

public:
    static constexpr int MinimumMagnification = 1;
    static constexpr int MaximumMagnification = 16;

    explicit TilePickerGrid(QWidget *parent = nullptr);

    TileSet *tileSet() const { return m_tileSet; }
    void setTileSet(const QPointer<TileSet> &tileSet);

    /// Screen pixels of a tile's pixel.
    int magnification() const { return m_magnification; }
    void setMagnification(int magnification);
    /// "1x" to "16x", of which the one in force is checked.
    QList<QAction *> magnificationActions() const { return m_factors->actions(); }

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

signals:
    void selectedIndexChanged(int index);
    /// Carries the tile's number, which counts from 1.
    void itemDoubleClicked(int index);
    void magnificationChanged(int magnification);
    /// Tiles beside each other were marked, by dragging with Ctrl or with Shift and the arrow keys: their indices in
    /// rows, -1 where there is none.
    void tilesPicked(const QList<QList<int>> &rows);

protected:
    int count() const override { return m_tileSet ? m_tileSet->count() : 0; }
    int cell() const override { return m_magnification * Tile::Size; }
    QImage picture(int index) const override { return m_tileSet->image(index); }
    QMimeData *dragData(int index) const override { return TileDrag{index, m_tileSet->tileOffset(index)}.toMimeData(); }
    QString toolTipOf(int index) const override;
    QString textOf(int index) const override;
    void clicked(int index) override { choose(index); }
    void choose(int index) override;
    void openMenu(int index, QPoint globalPosition) override;
    void copyElement(int source, int target) override { m_tileSet->copyTile(source, target); }
    void moveElement(int source, int target) override { m_tileSet->moveTile(source, target); }
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildMenu();
    void buildFactors();
    void addTileAction(const char *name, const QString &text, void (TilePickerGrid::*edit)());
    void clearTile();
    void copyTileImage();
    void pasteTileImage();
    void insertTile();
    void deleteTile();
    void paintMarks(QPainter &painter) const;
    /// Marks tiles from the selected one to another place with the keyboard, and takes them as marked.
    void markTo(QPoint place);
    void takeMarked();
    bool isMarking() const { return m_markedFrom && !m_markedByKeys; }
    /// Column and row of the place of a tile that is nearest to a point.
    QPoint placeAt(QPoint point) const;
    QRect markedRect() const;

    QPointer<TileSet> m_tileSet;
    QActionGroup *m_factors;
    int m_magnification = 8;
    int m_menuTile = -1;
    int m_copySource = -1;
    std::optional<QPoint> m_markedFrom; ///< places of tiles that are being marked
    QPoint m_markedTo;
    bool m_markedByKeys = false; ///< and stay marked until another key
};
