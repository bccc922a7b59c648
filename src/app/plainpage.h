#pragma once

// The docks and pages of editors that are not built yet stand in for the real ones here, with their
// names, properties and texts. Each gives way by itself as soon as its editor is there.

#include "editors/animation/blockeditorview.h"
#include "editors/animation/spriteeditorview.h"
#include "editors/edittarget.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tileset.h"
#include "ui/dockwidget.h"

#include <QLabel>
#include <QToolBar>
#include <QUndoStack>
#include <QVBoxLayout>

/// A page that only says what it stands for.
class PlainPage : public QWidget
{
    Q_OBJECT

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

class PlainMapObjects : public DockWidget
{
    Q_OBJECT

public:
    explicit PlainMapObjects(QWidget *parent = nullptr)
        : DockWidget(tr("Map Objects"), tr("No active tile set"), parent)
    {
        setObjectName(QStringLiteral("TileListWindow"));
        setContent(new PlainPage(windowTitle()));
    }
    void setTileSet(const QPointer<TileSet> &tileSet) { setActive(tileSet); }

signals:
    void animationSelected(QPointer<TileAnimation> animation);
};

class PlainMapSprites : public DockWidget
{
    Q_OBJECT

public:
    explicit PlainMapSprites(QWidget *parent = nullptr) : DockWidget(tr("Map Sprites"), tr("No sprites"), parent)
    {
        setObjectName(QStringLiteral("MapSpritesWindow"));
        setContent(new PlainPage(windowTitle()));
    }
    void setProject(const QPointer<Project> &project) { setActive(project); }

signals:
    void spriteAnimationSelected(QPointer<SpriteAnim> animation);
    void spriteSelected(QUuid bankId, int index);
};

class PlainMapToolBar : public QToolBar
{
    Q_OBJECT

public:
    explicit PlainMapToolBar(QWidget *parent = nullptr) : QToolBar(tr("Map"), parent)
    {
        setObjectName(QStringLiteral("MapToolBar"));
    }
};

struct PlainMapPreferences
{
    bool checkerBoard = false;
    QColor gridColour1;
    QColor gridColour2;
    bool overlayGrid = false;
    int gridSize = 8;
    int defaultZoom = 1;
};

class PlainMapEditor : public PlainPage
{
    Q_OBJECT

public:
    explicit PlainMapEditor(const QPointer<Map> &map, QWidget *parent = nullptr) : PlainPage(map->name(), parent) { }
    void setUndoStack(QUndoStack *) { }
    void attachToolBar(QToolBar *) { }
    void detachToolBar() { }
    void setSpriteBanks(const QList<QPointer<SpriteBank>> &) { }
    void applyPreferences(const PlainMapPreferences &) { }
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

#if __has_include("editors/map/blockselectorwindow.h")
#include "editors/map/blockselectorwindow.h"
#else
using BlockSelectorWindow = PlainMapObjects;
#endif

#if __has_include("editors/map/mapspriteswindow.h")
#include "editors/map/mapspriteswindow.h"
#else
using MapSpritesWindow = PlainMapSprites;
#endif

#if __has_include("editors/map/mapeditorview.h")
#include "editors/map/mapeditortoolbar.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mappreferences.h"
#else
namespace MapEditor {
using ToolBar = PlainMapToolBar;
using Preferences = PlainMapPreferences;
using View = PlainMapEditor;
} // namespace MapEditor
#endif
