#include "editors/map/mapspriteswindow.h"

#include "editors/common/animationlistwidget.h"
#include "editors/map/spritelistmodel.h"
#include "ui/quietlist.h"
#include "ui/repeatedpress.h"
#include "ui/sectionheader.h"

#include <QComboBox>
#include <QListView>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr int PictureExtent = 2 * SpriteBank::SpriteSize;
constexpr int CellExtent = PictureExtent + 6;

} // namespace

MapSpritesWindow::MapSpritesWindow(QWidget *parent)
    : DockWidget(tr("Map Sprites"), tr("No sprites"), parent)
    , m_banks(new QComboBox)
    , m_animations(new AnimationEditor::AnimationListWidget)
    , m_animationsPart(SectionHeader::over(m_animations, new SectionHeader(tr("Animations"))))
    , m_model(new SpriteListModel(this))
    , m_sprites(new QuietList<QListView>)
{
    setObjectName(QStringLiteral("MapSpritesWindow"));
    m_banks->setAccessibleName(tr("Sprite bank"));
    m_banks->setToolTip(tr("The sprite banks of the project"));
    m_banks->setMinimumContentsLength(8);
    m_banks->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

    m_model->setPictureExtent(PictureExtent);
    m_sprites->setObjectName(QStringLiteral("sprites"));
    m_sprites->setModel(m_model);
    m_sprites->setViewMode(QListView::IconMode);
    m_sprites->setMovement(QListView::Static);
    m_sprites->setResizeMode(QListView::Adjust);
    m_sprites->setUniformItemSizes(true);
    m_sprites->setIconSize({PictureExtent, PictureExtent});
    m_sprites->setGridSize({CellExtent, CellExtent});
    m_sprites->setDragEnabled(false);
    m_sprites->setAccessibleName(tr("Sprites"));

    auto *parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(m_animationsPart);
    parts->addWidget(SectionHeader::over(m_sprites, new SectionHeader(tr("Sprites"))));
    parts->setStretchFactor(0, 1);
    parts->setStretchFactor(1, 2);
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_banks);
    layout->addWidget(parts, 1);
    setContent(page);

    connect(m_banks, &QComboBox::currentIndexChanged, this, [this] {
        const QUuid id = m_banks->currentData().toUuid();
        setBank(m_project ? m_project->spriteBank(id) : nullptr);
    });
    using List = AnimationEditor::AnimationListWidget;
    connect(m_animations, &List::selectedItemChanged, this, &MapSpritesWindow::chooseAnimation);
    connect(m_animations, &List::selectedItemClicked, this, &MapSpritesWindow::chooseAnimation);
    connect(m_sprites->selectionModel(), &QItemSelectionModel::currentChanged, this, &MapSpritesWindow::chooseSprite);
    connect(new RepeatedPress(m_sprites), &RepeatedPress::pressedAgain, this, &MapSpritesWindow::chooseSprite);
}

void MapSpritesWindow::setProject(const QPointer<Project> &project)
{
    if (m_project)
        m_project->disconnect(this);
    m_project = project;
    if (m_project) {
        connect(m_project, &Project::spritesCreated, this, &MapSpritesWindow::refreshBanks);
        connect(m_project, &QObject::destroyed, this, &MapSpritesWindow::refreshBanks);
    }
    refreshBanks();
}

void MapSpritesWindow::refreshBanks()
{
    const QPointer<SpriteBank> before = bank();
    for (const QPointer<SpriteBank> &followed : std::as_const(m_followed)) {
        if (followed)
            disconnect(followed, &QObject::destroyed, this, nullptr);
    }
    m_followed = m_project ? m_project->spriteBanks() : QList<QPointer<SpriteBank>>();
    {
        const QSignalBlocker blocker(m_banks);
        m_banks->clear();
        for (const QPointer<SpriteBank> &shown : std::as_const(m_followed)) {
            m_banks->addItem(shown->name(), shown->id());
            connect(shown, &QObject::destroyed, this, &MapSpritesWindow::refreshBanks);
        }
        const int row = before ? m_banks->findData(before->id()) : -1;
        m_banks->setCurrentIndex(row < 0 && m_banks->count() > 0 ? 0 : row);
    }
    const QUuid id = m_banks->currentData().toUuid();
    if (const QPointer<SpriteBank> now = m_project ? m_project->spriteBank(id) : nullptr; !now || now != before)
        setBank(now);
    setActive(m_banks->count() > 0);
}

QPointer<SpriteBank> MapSpritesWindow::bank() const
{
    return m_model->bank();
}

void MapSpritesWindow::setBank(const QPointer<SpriteBank> &bank)
{
    if (const QPointer<SpriteBank> before = this->bank())
        disconnect(before, &SpriteBank::animationsChanged, this, nullptr);
    m_model->setBank(bank);
    if (bank) {
        connect(bank, &SpriteBank::animationsChanged, this, &MapSpritesWindow::refreshAnimations);
        using List = AnimationEditor::AnimationListWidget;
        connect(bank, &SpriteBank::imageChanged, m_animations, &List::refreshPictures, Qt::UniqueConnection);
        connect(bank, &SpriteBank::countChanged, m_animations, &List::refreshPictures, Qt::UniqueConnection);
        connect(bank, &SpriteBank::coloursChanged, m_animations, &List::refreshPictures, Qt::UniqueConnection);
        connect(bank, &SpriteBank::shownColoursChanged, m_animations, &List::refreshPictures, Qt::UniqueConnection);
    }
    refreshAnimations();
}

void MapSpritesWindow::refreshAnimations()
{
    const QPointer<SpriteBank> bank = this->bank();
    m_animations->setAnimations(bank ? bank->animations() : QList<QPointer<SpriteAnim>>());
    m_animationsPart->setVisible(!m_animations->animations().isEmpty());
}

void MapSpritesWindow::showBank(QUuid id)
{
    if (const int row = m_banks->findData(id); row >= 0)
        m_banks->setCurrentIndex(row);
}

// Choosing; one of the two lists has a selection

void MapSpritesWindow::chooseAnimation(Animation *animation)
{
    auto *chosen = qobject_cast<SpriteAnim *>(animation);
    if (!chosen)
        return;
    m_sprites->setCurrentIndex({});
    m_sprites->clearSelection();
    emit spriteAnimationSelected(chosen);
}

void MapSpritesWindow::chooseSprite(const QModelIndex &index)
{
    if (!index.isValid() || !bank())
        return;
    m_animations->select(nullptr);
    emit spriteSelected(bank()->id(), index.row());
}

void MapSpritesWindow::selectSprite(const Map::PlacedSprite &sprite)
{
    showBank(sprite.bank);
    const QSignalBlocker blocker(this);
    if (!bank() || bank()->id() != sprite.bank)
        return;
    if (sprite.animation.isNull())
        m_sprites->setCurrentIndex(m_model->index(sprite.sprite));
    else
        m_animations->select(bank()->animation(sprite.animation));
}
