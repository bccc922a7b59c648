#pragma once

#include "model/tileset.h"

#include <QActionGroup>
#include <QPointer>
#include <QWidget>

class QMenu;

/// All tiles of a tile set in rows that fill the widget's width: one is selected, tiles are dragged to
/// other places, and a context menu edits the list.
class TilePickerGrid : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MinimumMagnification = 1;
    static constexpr int MaximumMagnification = 16;

    explicit TilePickerGrid(QWidget *parent = nullptr);

    TileSet *tileSet() const { return m_tileSet; }
    void setTileSet(const QPointer<TileSet> &tileSet);
    /// The selected tile, -1 when there is none.
    int selectedIndex() const { return m_selected; }

    /// Screen pixels of a tile's pixel.
    int magnification() const { return m_magnification; }
    void setMagnification(int magnification);
    /// "1x" to "16x", of which the one in force is checked.
    QList<QAction *> magnificationActions() const { return m_factors->actions(); }
    QMenu *contextMenu() const { return m_menu; }

    /// The tile under a point, -1 when there is none.
    int indexAt(QPoint point) const;
    QRect cellRect(int index) const;

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

public slots:
    void setSelectedIndex(int index);

signals:
    void selectedIndexChanged(int index);
    /// Carries the tile's number, which counts from 1.
    void itemDoubleClicked(int index);
    void magnificationChanged(int magnification);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void buildMenu();
    void buildFactors();
    void addTileAction(const QString &text, void (TilePickerGrid::*edit)());
    void clearTile();
    void copyTileImage();
    void pasteTileImage();
    void insertTile();
    void deleteTile();
    void startDrag();
    void refreshSize();
    int cell() const;
    int columns(int width) const;
    void choose(int index);
    void paintMarks(QPainter &painter) const;

    QPointer<TileSet> m_tileSet;
    QMenu *m_menu;
    QActionGroup *m_factors;
    int m_magnification = 8;
    int m_selected = -1;
    int m_hovered = -1;
    int m_menuTile = -1;
    int m_copySource = -1;
    int m_dropTarget = -1;
    QPoint m_pressPoint{-1, -1};
    bool m_pointerInside = false;
};
