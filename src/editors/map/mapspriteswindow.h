#pragma once

#include "model/map.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "ui/dockwidget.h"

#include <QList>
#include <QPointer>
#include <QUuid>

class Animation;
class QComboBox;
class QListView;
class SpriteListModel;

namespace AnimationEditor {
class AnimationListWidget;
}

/// The map sprites dock: the animations and single sprites of a bank of the project, to be placed on maps.
class MapSpritesWindow : public DockWidget
{
    Q_OBJECT

public:
    explicit MapSpritesWindow(QWidget *parent = nullptr);

    /// Offers the sprite banks of a project; null shows the placeholder.
    void setProject(const QPointer<Project> &project);
    /// The bank whose sprites are shown, or null.
    [[nodiscard]] QPointer<SpriteBank> bank() const;

public slots:
    /// Shows a bank of the project; another id changes nothing.
    void showBank(QUuid id);
    /// Selects what a placed sprite shows, without a signal.
    void selectSprite(const Map::PlacedSprite &sprite);
    /// Brings the chooser up to date after a bank was renamed.
    void refreshBanks();

signals:
    // One was chosen, perhaps the one that was chosen already.
    void spriteAnimationSelected(QPointer<SpriteAnim> animation);
    void spriteSelected(QUuid bankId, int index);

private:
    void setBank(const QPointer<SpriteBank> &bank);
    void refreshAnimations();
    void chooseAnimation(Animation *animation);
    void chooseSprite(const QModelIndex &index);

    QPointer<Project> m_project;
    QList<QPointer<SpriteBank>> m_followed; ///< whose end is noticed
    QComboBox *m_banks;
    AnimationEditor::AnimationListWidget *m_animations;
    QWidget *m_animationsPart;
    SpriteListModel *m_model;
    QListView *m_sprites;
};
