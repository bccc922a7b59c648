#include "editors/common/animationlistwidget.h"

#include "ui/commands.h"
#include "ui/emptyhint.h"
#include "ui/plaintext.h"
#include "ui/quietlist.h"
#include "ui/repeatedpress.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QHBoxLayout>
#include <QIconEngine>
#include <QListWidget>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace AnimationEditor {

namespace {

constexpr int PictureExtent = 32;

/// An animation's picture, which is drawn anew whenever it is painted.
class PictureIcon final : public QIconEngine
{
public:
    explicit PictureIcon(const Animation *animation) : m_animation(animation) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        if (!m_animation)
            return;
        const qreal ratio = painter->device()->devicePixelRatio();
        QImage picture = m_animation->preview(rect.size() * ratio);
        picture.setDevicePixelRatio(ratio);
        const QSize size = (QSizeF(picture.size()) / ratio).toSize();
        painter->drawImage(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, rect).topLeft(), picture);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap result(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return result;
    }
    QIconEngine *clone() const override { return new PictureIcon(m_animation); }

private:
    QPointer<const Animation> m_animation;
};

} // namespace

AnimationListWidget::AnimationListWidget(Flags flags, QWidget *parent)
    : QWidget(parent)
    , m_flags(flags)
    , m_list(new QuietList<QListWidget>(this))
{
    m_list->setIconSize({PictureExtent, PictureExtent});
    m_list->setUniformItemSizes(true);
    m_list->setAccessibleName(tr("Animations"));
    setFocusProxy(m_list);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list, 1);
    buildActions();
    if (m_flags.testFlag(Buttons)) {
        new EmptyHint(m_list->viewport(), [this] {
            return m_list->count() == 0 ? tr("There are no animations yet. Add below makes the first one.") : QString();
        });
    }

    connect(m_list, &QListWidget::currentRowChanged, this, &AnimationListWidget::currentRowChanged);
    connect(new RepeatedPress(m_list), &RepeatedPress::pressedAgain, this, [this] {
        if (selected())
            emit selectedItemClicked(selected());
    });
}

void AnimationListWidget::buildActions()
{
    const auto action = [this](const QString &icon, const QString &text, const QString &toolTip, auto request) {
        auto *made = new QAction(themedIcon(icon), text, this);
        made->setToolTip(toolTip);
        connect(made, &QAction::triggered, this, request);
        return made;
    };
    m_add = action(QStringLiteral(":/NewIcon"), tr("Add"), tr("Add a new animation"), [this] { emit addRequested(); });
    m_remove = action(QStringLiteral(":/Trashcan"), tr("Delete"), tr("Delete the selected animation"),
                      [this] { emit removeRequested(); });
    m_clone = action(QStringLiteral(":/Copy"), tr("Clone"), tr("Copy the selected animation"), [this] {
        if (selected())
            emit cloneRequested(selected());
    });
    m_add->setShortcut(Qt::Key_Insert);
    m_remove->setShortcut(QKeySequence::Delete);
    for (const auto &[made, name] : {std::pair(m_add, "add"), {m_remove, "delete"}, {m_clone, "clone"}}) {
        made->setShortcutContext(Qt::WidgetShortcut);
        Commands::add(made, QLatin1String("animationList.") + QLatin1String(name));
    }
    m_remove->setEnabled(false);
    m_clone->setEnabled(false);

    if (m_flags.testFlag(ContextMenu)) {
        m_list->addActions({m_add, m_remove, m_clone});
        m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    }
    if (m_flags.testFlag(Buttons)) {
        auto *buttons = new QHBoxLayout;
        for (QAction *shown : {m_add, m_remove}) {
            auto *button = new QToolButton(this);
            button->setDefaultAction(shown);
            button->setAutoRaise(true);
            buttons->addWidget(button);
        }
        buttons->addStretch();
        static_cast<QVBoxLayout *>(layout())->addLayout(buttons);
    }
}

// What is shown

void AnimationListWidget::setAnimations(const QList<QPointer<Animation>> &animations)
{
    Animation *before = selected();
    {
        const QSignalBlocker blocker(m_list);
        while (!m_animations.isEmpty())
            removeRow(0);
        for (const QPointer<Animation> &animation : animations) {
            if (animation)
                appendItem(animation);
        }
        m_list->setCurrentRow(rowOf(before));
    }
    if (selected() != before)
        currentRowChanged(m_list->currentRow());
}

void AnimationListWidget::addAnimation(Animation *animation)
{
    if (animation && rowOf(animation) < 0)
        appendItem(animation);
}

void AnimationListWidget::appendItem(Animation *animation)
{
    m_animations.append(animation);
    m_list->addItem(new QListWidgetItem(QIcon(new PictureIcon(animation)), QString()));
    updateText(m_list->count() - 1);
    follow(animation);
}

void AnimationListWidget::removeAnimation(Animation *animation)
{
    if (const int row = rowOf(animation); row >= 0)
        removeRow(row);
}

void AnimationListWidget::removeRow(int row)
{
    if (m_animations.at(row))
        m_animations.at(row)->disconnect(this);
    m_animations.removeAt(row);
    // the neighbour does not take over the selection
    if (row == m_list->currentRow())
        m_list->setCurrentRow(-1);
    delete m_list->takeItem(row);
}

void AnimationListWidget::follow(Animation *animation)
{
    const auto textChanged = [this, animation] { updateText(rowOf(animation)); };
    connect(animation, &Animation::nameChanged, this, textChanged);
    connect(animation, &Animation::sizeChanged, this, textChanged);
    connect(animation, &Animation::contentChanged, this, textChanged);
    connect(animation, &Animation::sizeChanged, this, &AnimationListWidget::refreshPictures);
    connect(animation, &Animation::contentChanged, this, &AnimationListWidget::refreshPictures);
    connect(animation, &Animation::frameChanged, this, &AnimationListWidget::refreshPictures);
    connect(animation, &QObject::destroyed, this, &AnimationListWidget::forgetDestroyed);
}

void AnimationListWidget::forgetDestroyed()
{
    for (int row = int(m_animations.size()) - 1; row >= 0; --row) {
        if (!m_animations.at(row))
            removeRow(row);
    }
}

void AnimationListWidget::updateText(int row)
{
    const Animation *animation = m_animations.value(row);
    if (!animation)
        return;
    QListWidgetItem *item = m_list->item(row);
    const QSize size = animation->size();
    item->setText(m_flags.testFlag(Details)
                      ? tr("%1\n%n frame(s) [%2x%3]", nullptr, animation->frameCount())
                            .arg(animation->name(), QString::number(size.width()), QString::number(size.height()))
                      : animation->name());
    item->setToolTip(plainText(animation->name()));
}

void AnimationListWidget::refreshPictures()
{
    m_list->viewport()->update();
}

// Selection

int AnimationListWidget::rowOf(const Animation *animation) const
{
    if (!animation)
        return -1;
    for (int row = 0; row < m_animations.size(); ++row) {
        if (m_animations.at(row) == animation)
            return row;
    }
    return -1;
}

Animation *AnimationListWidget::selected() const
{
    return m_animations.value(m_list->currentRow());
}

void AnimationListWidget::select(Animation *animation)
{
    const int row = rowOf(animation);
    m_list->setCurrentRow(row);
    if (row >= 0)
        m_list->scrollToItem(m_list->item(row));
}

void AnimationListWidget::currentRowChanged(int row)
{
    m_remove->setEnabled(row >= 0);
    m_clone->setEnabled(row >= 0);
    emit selectedItemChanged(selected());
}

} // namespace AnimationEditor
