#pragma once

#include "model/tileset.h"
#include "ui/dockwidget.h"

class QAction;
class QScrollArea;
class SectionHeader;
class TilePickerGrid;

/// The tile picker dock: the tiles of the active tile set in a scroll area.
class TilePickerTool : public DockWidget
{
    Q_OBJECT

public:
    explicit TilePickerTool(QWidget *parent = nullptr);

    /// Null shows the placeholder.
    void setTileSet(const QPointer<TileSet> &tileSet);
    TilePickerGrid *grid() const { return m_grid; }
    int magnification() const;
    void setMagnification(int magnification);
    QList<QAction *> magnificationActions() const;

public slots:
    /// Selects a tile and scrolls to it, without a signal.
    void setSelectedIndex(int index);

signals:
    /// Carries the tile's number, which counts from 1.
    void tileDoubleClicked(int index);
    void selectedTileChanged(int index);

private:
    void showName();
    void scrollTo(int index);

    QPointer<TileSet> m_tileSet;
    SectionHeader *m_header;
    QScrollArea *m_scroller;
    TilePickerGrid *m_grid;
};
