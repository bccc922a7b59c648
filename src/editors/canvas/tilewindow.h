#pragma once

#include "editors/canvas/pixeleditor.h"
#include "editors/canvas/previews.h"
#include "model/palette.h"
#include "model/tileset.h"
#include "ui/dockwidget.h"
#include "undo/editrecorder.h"

class ColourSelector;
class Map;
class NumberStepper;
class PaletteEditor;
class QSpinBox;
class TileAttributesEditor;

/// The tile editor dock: paints one tile of a tile set, and edits its palette offset, its attributes
/// and the palette.
class TileWindow : public DockWidget, public PixelEditor
{
    Q_OBJECT

public:
    explicit TileWindow(QWidget *parent = nullptr);

    void setUndoStackProvider(const EditRecorder::StackProvider &stackFor) { m_stackFor = stackFor; }

    TileSet *tileSet() const { return m_tileSet; }
    /// Who knows the map in front, for previews; it answers null when there is none.
    void setMapInFront(const std::function<Map *()> &mapInFront) { m_mapInFront = mapInFront; }
    /// Null shows the placeholder.
    void setTileSet(const QPointer<TileSet> &tileSet);
    /// Draws with a palette, and binds the tile set to it.
    void setPalette(const QPointer<Palette> &palette);
    /// The tile shown, counted from 0; -1 without a tile set.
    int tileIndex() const;

public slots:
    /// Writes the canvas's image into the tile.
    void imageChanged();
    /// Shows the tile of a number that counts from 1, or loads it again.
    void setTileIndex(int index);
    /// Moves the tile into a bank of 16 colours (1–16). Not an undo step.
    void paletteOffsetChanged(int offset);

signals:
    void activeStateChanged(bool enabled);
    /// Another tile, counted from 0, is shown.
    void tileIndexChanged(int index);

protected:
    bool event(QEvent *event) override;

private slots:
    void foreColourChanged(int index);
    void backColourChanged(int index);
    void tileCountChanged(int index);

private:
    QWidget *buildPage();
    void connectParts();
    void loadTile();
    void addPreviews();
    PreviewWindow::Picture repeated() const;
    PreviewWindow::Picture onTheMap();
    PreviewWindow::Picture inMotion(int frame) const;
    /// Exchanges the background colour for the foreground colour in all tiles that are drawn with the same colours.
    void replaceColourInAllTiles();
    void showBank(int bank);
    void showClearColour();
    void pushEdit(const QString &text, const QImage &before, const QImage &after, PixelEditCommand::Kind kind);
    void applyEdit(const QPointer<TileSet> &tileSet, int index, const QImage &image);
    void writeTile(const QPointer<TileSet> &tileSet, int index, const QImage &image);

    void showStroke(const QImage &pixels) override;

    QPointer<TileSet> m_tileSet;
    NumberStepper *m_number;
    QSpinBox *m_offset;
    ColourSelector *m_colours;
    TileAttributesEditor *m_attributes;
    PaletteEditor *m_paletteEditor;
    std::function<Map *()> m_mapInFront;
    Previews::PlaceOnMap m_place;
    EditRecorder::StackProvider m_stackFor;
    bool m_writing = false;
    QPointer<TileSet> m_strokeSet; ///< which shows a stroke that is being drawn
};
