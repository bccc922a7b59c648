#pragma once

#include <QSize>
#include <QToolBar>

class QLabel;
class QSpinBox;

namespace MapEditor {

/// The tool bar of the window that shows and changes how the map editor in front displays its map:
/// layers, viewport, background tile, transparency and snap.
class ToolBar : public QToolBar
{
    Q_OBJECT

public:
    static constexpr QSize DefaultViewport{40, 32}; ///< the screen of the Next, in cells

    /// What the tool bar shows.
    struct State
    {
        bool tilesVisible = true;
        bool objectsVisible = true;
        bool spritesVisible = true;
        QSize viewport = DefaultViewport; ///< in cells
        int backgroundTileIndex = -1; ///< -1 for none
        int transparencyIndex = -1; ///< -1 for off
        int snap = 1; ///< in cells; 1 for off
    };

    explicit ToolBar(QWidget *parent = nullptr);

    /// Shows the state of another map editor, without a signal.
    void showState(const State &state);
    [[nodiscard]] QSize viewport() const;
    [[nodiscard]] QString sizeText() const;

public slots:
    void setSizeText(const QString &text);

signals:
    void transparencyIndexChanged(int index);
    void snapToValueChanged(int value);
    void mapVisibilityChanged(bool visible);
    void objectVisibilityChanged(bool visible);
    void spriteVisibilityChanged(bool visible);
    void backgroundTileIndexChanged(int index);
    void viewPortChanged(QSize size);

private:
    QAction *addLayer(const QString &name, const QString &icon, const QString &text, const QString &toolTip);
    QSpinBox *addSpinBox(int minimum, int maximum, int value, const QString &toolTip, const QString &name);
    void addLabel(const QString &text);

    QAction *m_tiles;
    QAction *m_objects;
    QAction *m_sprites;
    QSpinBox *m_width;
    QSpinBox *m_height;
    QSpinBox *m_background;
    QSpinBox *m_transparency;
    QSpinBox *m_snap;
    QLabel *m_size;
};

} // namespace MapEditor
