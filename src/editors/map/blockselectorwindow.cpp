#include "editors/map/blockselectorwindow.h"

#include "editors/common/animationlistwidget.h"

#include <QSignalBlocker>

#include <algorithm>

using List = AnimationEditor::AnimationListWidget;

BlockSelectorWindow::BlockSelectorWindow(QWidget *parent)
    : DockWidget(tr("Map Objects"), tr("No active tile set"), parent)
    , m_list(new List)
{
    setObjectName(QStringLiteral("TileListWindow"));
    setContent(m_list);
    connect(m_list, &List::selectedItemChanged, this, &BlockSelectorWindow::choose);
    connect(m_list, &List::selectedItemClicked, this, &BlockSelectorWindow::choose);
}

void BlockSelectorWindow::setTileSet(const QPointer<TileSet> &tileSet)
{
    if (m_tileSet) {
        m_tileSet->disconnect(this);
        m_tileSet->disconnect(m_list);
    }
    m_tileSet = tileSet;
    if (m_tileSet) {
        connect(m_tileSet, &TileSet::tileChanged, m_list, &List::refreshPictures);
        connect(m_tileSet, &TileSet::restored, m_list, &List::refreshPictures);
        connect(m_tileSet, &TileSet::structureChanged, m_list, &List::refreshPictures);
        connect(m_tileSet, &TileSet::shownColoursChanged, m_list, &List::refreshPictures);
        connect(m_tileSet, &QObject::destroyed, this, &BlockSelectorWindow::refresh);
    }
    refresh();
}

void BlockSelectorWindow::refresh()
{
    for (const QPointer<MapObjects> &blocks : std::as_const(m_blockSets)) {
        if (blocks)
            blocks->disconnect(this);
    }
    m_blockSets.clear();
    if (m_tileSet) {
        const QHash<QUuid, QPointer<MapObjects>> registered = m_tileSet->blockSets();
        std::ranges::copy_if(registered, std::back_inserter(m_blockSets),
                             [](const QPointer<MapObjects> &blocks) { return !blocks.isNull(); });
    }
    std::ranges::sort(m_blockSets, {},
                      [](const QPointer<MapObjects> &blocks) { return std::pair(blocks->name(), blocks->id()); });

    QList<QPointer<TileAnimation>> animations;
    for (const QPointer<MapObjects> &blocks : std::as_const(m_blockSets)) {
        animations += blocks->animations();
        connect(blocks, &MapObjects::animationsChanged, this, &BlockSelectorWindow::refresh);
        connect(blocks, &MapObjects::nameChanged, this, &BlockSelectorWindow::refresh);
        connect(blocks, &QObject::destroyed, this, &BlockSelectorWindow::refresh);
    }
    m_list->setAnimations(animations);
    setPlaceholderText(m_tileSet ? tr("The tile set has no map objects") : tr("No active tile set"));
    setActive(!animations.isEmpty());
}

void BlockSelectorWindow::selectAnimation(QUuid id)
{
    const QSignalBlocker blocker(this);
    const QList<QPointer<Animation>> &shown = m_list->animations();
    const auto found = std::ranges::find_if(
        shown, [&id](const QPointer<Animation> &animation) { return animation && animation->id() == id; });
    m_list->select(found == shown.end() ? nullptr : found->data());
}

void BlockSelectorWindow::choose(Animation *animation)
{
    if (auto *chosen = qobject_cast<TileAnimation *>(animation))
        emit animationSelected(chosen);
}
