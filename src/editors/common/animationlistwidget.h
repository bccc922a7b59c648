#pragma once

#include "model/animation.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class QAction;
class QListWidget;

namespace AnimationEditor {

/// The animations of a block set or sprite bank, one of which can be selected.
///
/// The list follows what is shown: names, sizes and pictures stay up to date, and an animation that is
/// destroyed leaves it. It adds and removes no animation of the model: it asks its owner by signals.
class AnimationListWidget : public QWidget
{
    Q_OBJECT

public:
    enum Flag {
        PlainList = 0,
        Buttons = 1, ///< "Add" and "Delete" below the list
        ContextMenu = 2, ///< with "Add", "Delete" and "Clone"; the Delete key in the list does the same
        Details = 4, ///< size and number of frames below the name
    };
    Q_DECLARE_FLAGS(Flags, Flag)

    explicit AnimationListWidget(Flags flags = PlainList, QWidget *parent = nullptr);

    /// Shows these animations in this order. The selected one stays selected when it is among them;
    /// otherwise none is.
    void setAnimations(const QList<QPointer<Animation>> &animations);
    template <class A>
    void setAnimations(const QList<QPointer<A>> &animations)
    {
        QList<QPointer<Animation>> list;
        list.reserve(animations.size());
        for (const QPointer<A> &animation : animations)
            list.append(animation.data());
        setAnimations(list);
    }

    void addAnimation(Animation *animation);
    void removeAnimation(Animation *animation);

    /// In the order of the list.
    [[nodiscard]] const QList<QPointer<Animation>> &animations() const { return m_animations; }

    /// The selected animation, or null.
    [[nodiscard]] Animation *selected() const;
    /// Selects an animation of the list (null: none) and scrolls to it.
    void select(Animation *animation);

public slots:
    /// Paints the pictures anew; for tiles, sprites or colours that look different now.
    void refreshPictures();

signals:
    void addRequested();
    void removeRequested();
    void cloneRequested(Animation *animation);
    /// Another animation, or none (null), is selected now, whoever selected it.
    void selectedItemChanged(Animation *animation);
    /// The animation that is selected already was clicked again.
    void selectedItemClicked(Animation *animation);

private:
    void buildActions();
    void appendItem(Animation *animation);
    void removeRow(int row);
    void follow(Animation *animation);
    void forgetDestroyed();
    [[nodiscard]] int rowOf(const Animation *animation) const;
    void updateText(int row);
    void currentRowChanged(int row);

    Flags m_flags;
    QListWidget *m_list;
    QList<QPointer<Animation>> m_animations; ///< row by row
    QAction *m_add = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_clone = nullptr;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(AnimationListWidget::Flags)

} // namespace AnimationEditor
