#pragma once

// The docks and pages of editors that are not built yet, with the names, properties and texts of the
// real ones. Each gives way as soon as its editor is there.

#include "editors/edittarget.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tileset.h"
#include "ui/dockwidget.h"
#include "undo/editrecorder.h"

#include <QAction>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>

/// A page that only says what it stands for.
class PlainPage : public QWidget
{
public:
    explicit PlainPage(const QString &text, QWidget *parent = nullptr) : QWidget(parent)
    {
        auto *label = new QLabel(text);
        label->setAlignment(Qt::AlignCenter);
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(label);
        setFocusPolicy(Qt::StrongFocus);
    }
};

class PlainTarget : public EditTarget
{
public:
    void cut() override { }
    void copy() override { }
    void paste() override { }
    void selectAll() override { }
    void selectNone() override { }
};

#if __has_include("editors/canvas/tilewindow.h")
#include "editors/canvas/tilewindow.h"
#else
class TileWindow : public DockWidget, public PlainTarget
{
    Q_OBJECT
public:
    explicit TileWindow(QWidget *parent = nullptr) : DockWidget(tr("Tile Editor"), tr("No tile set selected"), parent)
    {
        setObjectName(QStringLiteral("TileEditor"));
        setContent(new PlainPage(windowTitle()));
    }
    void setUndoStackProvider(const EditRecorder::StackProvider &) { }
    void setTileSet(const QPointer<TileSet> &tileSet)
    {
        m_tileSet = tileSet;
        m_index = 0;
        setActive(tileSet);
    }
    [[nodiscard]] QPointer<TileSet> tileSet() const { return m_tileSet; }
    void setPalette(const QPointer<Palette> &palette)
    {
        if (m_tileSet && palette && m_tileSet->palette() != palette)
            m_tileSet->setPalette(palette);
    }
    [[nodiscard]] int tileIndex() const { return m_index; }
public slots:
    void setTileIndex(int index) { m_index = index; }
signals:
    void tileIndexChanged(int index);

private:
    QPointer<TileSet> m_tileSet;
    int m_index = 0;
};
#endif

#if __has_include("editors/canvas/spritewindow.h")
#include "editors/canvas/spritewindow.h"
#else
class SpriteWindow : public DockWidget, public PlainTarget
{
    Q_OBJECT
public:
    explicit SpriteWindow(QWidget *parent = nullptr)
        : DockWidget(tr("Sprite Editor"), tr("No sprites selected"), parent)
    {
        setObjectName(QStringLiteral("SpriteEditor"));
        setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
        setContent(new PlainPage(windowTitle()));
    }
    void setUndoStackProvider(const EditRecorder::StackProvider &) { }
    void setSprites(QPointer<SpriteBank> sprites)
    {
        m_sprites = sprites;
        setActive(sprites);
    }
    [[nodiscard]] QPointer<SpriteBank> sprites() const { return m_sprites; }
    void setSpritePalette(Palette *palette)
    {
        if (m_sprites && palette)
            m_sprites->setPalette(palette);
    }

private:
    QPointer<SpriteBank> m_sprites;
};
#endif

#if __has_include("editors/canvas/tilepickertool.h")
#include "editors/canvas/tilepickertool.h"
#else
class TilePickerTool : public DockWidget
{
    Q_OBJECT
public:
    explicit TilePickerTool(QWidget *parent = nullptr) : DockWidget(tr("Tiles"), tr("No active tile set"), parent)
    {
        setObjectName(QStringLiteral("TilePickerTool"));
        setContent(new PlainPage(windowTitle()));
    }
    void setTileSet(const QPointer<TileSet> &tileSet) { setActive(tileSet); }
    [[nodiscard]] int magnification() const { return m_magnification; }
    void setMagnification(int magnification) { m_magnification = magnification; }
    [[nodiscard]] QList<QAction *> magnificationActions() const { return {}; }
public slots:
    void setSelectedIndex(int index) { emit selectedTileChanged(index); }
signals:
    void selectedTileChanged(int index);
    void tileDoubleClicked(int number);

private:
    int m_magnification = 8;
};
#endif

#if __has_include("editors/map/blockselectorwindow.h")
#include "editors/map/blockselectorwindow.h"
#else
class BlockSelectorWindow : public DockWidget
{
    Q_OBJECT
public:
    explicit BlockSelectorWindow(QWidget *parent = nullptr)
        : DockWidget(tr("Map Objects"), tr("No active tile set"), parent)
    {
        setObjectName(QStringLiteral("TileListWindow"));
        setContent(new PlainPage(windowTitle()));
    }
    void setTileSet(const QPointer<TileSet> &tileSet) { setActive(tileSet); }
signals:
    void animationSelected(QPointer<TileAnimation> animation);
};
#endif

#if __has_include("editors/map/mapspriteswindow.h")
#include "editors/map/mapspriteswindow.h"
#else
class MapSpritesWindow : public DockWidget
{
    Q_OBJECT
public:
    explicit MapSpritesWindow(QWidget *parent = nullptr) : DockWidget(tr("Map Sprites"), tr("No sprites"), parent)
    {
        setObjectName(QStringLiteral("MapSpritesWindow"));
        setContent(new PlainPage(windowTitle()));
    }
    void setProject(const QPointer<Project> &project) { setActive(project); }
signals:
    void spriteAnimationSelected(QPointer<SpriteAnim> animation);
    void spriteSelected(QUuid bankId, int index);
};
#endif

#if __has_include("editors/canvas/imageeditorview.h")
#include "editors/canvas/imageeditorview.h"
#else
namespace ImageEditor {
class View : public PlainPage, public PlainTarget
{
    Q_OBJECT
public:
    explicit View(QWidget *parent = nullptr) : PlainPage(tr("Image"), parent) { }
    void setImage(const QPointer<Image> &) { }
    void setPixels(const QImage &) { }
    void setPalette(const QPointer<Palette> &) { }
    void setUndoStack(QUndoStack *) { }
signals:
    void imageChanged(QImage image);
};
} // namespace ImageEditor
#endif

#if __has_include("editors/map/mapeditortoolbar.h")
#include "editors/map/mapeditortoolbar.h"
#else
namespace MapEditor {
class ToolBar : public QToolBar
{
    Q_OBJECT
public:
    explicit ToolBar(QWidget *parent = nullptr) : QToolBar(tr("Map"), parent)
    {
        setObjectName(QStringLiteral("MapToolBar"));
        addAction(tr("Tiles"));
    }
};
} // namespace MapEditor
#endif

#if __has_include("editors/map/mapeditorview.h")
#include "editors/map/mapeditorview.h"
#else
namespace MapEditor {
struct Preferences
{
    bool checkerBoard = false;
    QColor gridColour1;
    QColor gridColour2;
    bool overlayGrid = false;
    int gridSize = 8;
    int defaultZoom = 1;
};

class View : public PlainPage, public PlainTarget
{
    Q_OBJECT
public:
    explicit View(const QPointer<Map> &map, QWidget *parent = nullptr) : PlainPage(map->name(), parent) { }
    void setUndoStack(QUndoStack *) { }
    void attachToolBar(ToolBar *) { }
    void detachToolBar() { }
    void setSpriteBanks(const QList<QPointer<SpriteBank>> &) { }
    void applyPreferences(const Preferences &) { }
    void pauseAnimation() { }
    void resumeAnimation() { }
public slots:
    void setTileIndex(int) { }
    void setMapObject(QPointer<TileAnimation>) { }
    void setSpriteAnimation(QPointer<SpriteAnim>) { }
    void setSingleSprite(QUuid, int) { }
signals:
    void exportTileMap(QString dir, QUuid id);
    void exportTiles(QString dir, QUuid id);
    void exportTilePalette(QString dir, QUuid id);
    void tilePicked(int index);
    void createMapFromSelection(QUuid mapId, QSize size);
    void placeAnimModeEnabled();
    void placeSpriteModeEnabled();
};
} // namespace MapEditor
#endif

#if __has_include("editors/animation/spriteeditorview.h")
#include "editors/animation/spriteeditorview.h"
#else
namespace SpriteEditor {
class View : public PlainPage
{
    Q_OBJECT
public:
    explicit View(const QPointer<SpriteBank> &bank, QWidget *parent = nullptr) : PlainPage(bank->name(), parent) { }
};
} // namespace SpriteEditor
#endif

#if __has_include("editors/animation/blockeditorview.h")
#include "editors/animation/blockeditorview.h"
#else
namespace BlockEditor {
class View : public PlainPage
{
    Q_OBJECT
public:
    explicit View(const QPointer<MapObjects> &blocks, QWidget *parent = nullptr) : PlainPage(blocks->name(), parent) { }
};
} // namespace BlockEditor
#endif
