#include "editors/animation/blockeditorview.h"

#include "editors/animation/animationeditorwidget.h"
#include "editors/common/animationlistwidget.h"
#include "model/tileset.h"

namespace BlockEditor {

using AnimationEditor::AnimationListWidget;

View::View(const QPointer<MapObjects> &blocks, QWidget *parent) : View(blocks, new AnimationEditorWidget, parent) { }

View::View(const QPointer<MapObjects> &blocks, AnimationEditorWidget *editor, QWidget *parent)
    : AnimationView(new AnimationListWidget(AnimationListWidget::Buttons | AnimationListWidget::ContextMenu), editor,
                    parent)
    , m_blocks(blocks)
    , m_editor(editor)
{
    if (m_blocks) {
        connect(m_blocks, &MapObjects::animationsChanged, this, &View::syncList);
        connect(m_blocks, &QObject::destroyed, this, &View::syncList);
        followTileSet();
    }
    showTiles();
    syncList();
}

TileSet *View::tileSet() const
{
    return m_blocks ? m_blocks->tileSet().data() : nullptr;
}

void View::followTileSet()
{
    if (!tileSet())
        return;
    connect(tileSet(), &TileSet::tileChanged, this, &View::showTiles);
    connect(tileSet(), &TileSet::shownColoursChanged, this, &View::repaintCells);
    connect(tileSet(), &TileSet::structureChanged, this, &View::showTiles);
    connect(tileSet(), &TileSet::restored, this, &View::showTiles);
    connect(tileSet(), &QObject::destroyed, this, &View::showTiles);
}

void View::showTiles()
{
    refreshPictures(tileSet() ? tileSet()->count() : 0);
}

QImage View::cellPicture(const AnimationFrame::Cell &cell) const
{
    if (!tileSet() || cell.index < 0 || cell.index >= tileSet()->count())
        return {};
    return tileSet()->shownTileImage(cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset);
}

QList<Animation *> View::animations() const
{
    QList<Animation *> list;
    if (m_blocks) {
        for (const QPointer<TileAnimation> &animation : m_blocks->animations())
            list.append(animation);
    }
    return list;
}

Animation *View::createAnimation()
{
    if (!m_blocks)
        return nullptr;
    const QPointer<TileAnimation> animation = m_blocks->createBoundTileAnimation(tr("New Object"));
    animation->addFrame();
    return animation;
}

Animation *View::copyAnimation(Animation &animation)
{
    return m_blocks ? m_blocks->cloneAnimation(animation.id()).data() : nullptr;
}

void View::destroyAnimation(Animation &animation)
{
    if (m_blocks)
        m_blocks->removeAnimation(animation.id());
}

void View::announceAdded(Animation &animation)
{
    emit animationAdded(qobject_cast<TileAnimation *>(&animation));
}

void View::announceRemoved(Animation &animation)
{
    emit animationRemoved(qobject_cast<TileAnimation *>(&animation));
}

} // namespace BlockEditor
