#pragma once

#include "model/mapobjects.h"
#include "model/tileanimation.h"
#include "model/tileset.h"
#include "ui/dockwidget.h"

#include <QList>
#include <QPointer>
#include <QUuid>

namespace AnimationEditor {
class AnimationListWidget;
}

/// The map objects dock: the animations of the block sets of the active tile set, to be placed on its maps.
class BlockSelectorWindow : public DockWidget
{
    Q_OBJECT

public:
    explicit BlockSelectorWindow(QWidget *parent = nullptr);

    /// Null shows the placeholder.
    void setTileSet(const QPointer<TileSet> &tileSet);
    [[nodiscard]] AnimationEditor::AnimationListWidget *list() const { return m_list; }

public slots:
    /// Selects an animation, without a signal; an unknown id selects none.
    void selectAnimation(QUuid id);

signals:
    /// An animation was chosen, perhaps the one that was chosen already.
    void animationSelected(QPointer<TileAnimation> animation);

private:
    void refresh();
    void choose(Animation *animation);

    QPointer<TileSet> m_tileSet;
    QList<QPointer<MapObjects>> m_blockSets; ///< of the tile set, by name
    AnimationEditor::AnimationListWidget *m_list;
};
