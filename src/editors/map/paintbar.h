#pragma once

#include "editors/map/mapbrush.h"
#include "editors/map/paintkit.h"
#include "model/palette.h"

#include <QPointer>
#include <QToolBar>

#include <bitset>

class QComboBox;
class QSpinBox;
class QTimer;

namespace MapEditor {

/// The bar over a map that tells and changes what is painted: the palette offset, the terrain, and the stamps that were
/// used last or have a name.
class PaintBar : public QToolBar
{
    Q_OBJECT

public:
    explicit PaintBar(QWidget *parent = nullptr);

    /// Null shows no stamps and terrains.
    void setKit(const QPointer<PaintKit> &kit);
    [[nodiscard]] const QPointer<PaintKit> &kit() const { return m_kit; }
    /// The terrain that is chosen; one without tiles when there is none.
    [[nodiscard]] Terrain terrain() const;
    /// Whether stamps have changed that are shown in a moment.
    [[nodiscard]] bool isShowingSoon() const;
    /// The picture of a stamp at a size that fits into buttons.
    [[nodiscard]] static QPixmap pictureOf(const Stamp &stamp, TileSet *tileSet, int extent, qreal ratio);

signals:
    void stampChosen(const Stamp &stamp);
    /// Or -1 for that of the tiles.
    void paletteOffsetChanged(int offset);
    void terrainChanged(const Terrain &terrain);
    /// Terrains are to be made or edited.
    void terrainsRequested();
    /// A value was chosen, and the keyboard is not needed here any more.
    void finished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addTerrainBox();
    void addOffsetBox();
    void showStamps();
    /// Shows the stamps in other colours.
    void showColours();
    void showTerrains();
    void showMenu(int index, QPoint globalPosition);
    void askForName(int index);

    QPointer<PaintKit> m_kit;
    QSpinBox *m_offset;
    QComboBox *m_terrains;
    QAction *m_hint; ///< in place of stamps, while there are none
    QList<QAction *> m_stamps;
    QList<std::bitset<Palette::Size>> m_entries; ///< of the palette, which each of them shows
    QList<QRgb> m_colours; ///< in which they are shown; empty before the first step of colours
    QTimer *m_soon; ///< shows the stamps as they are then
};

} // namespace MapEditor
