#pragma once

#include "model/animation.h"

#include <QSplitter>

#include <functional>

class SectionHeader;

namespace AnimationEditor {

class AnimationListWidget;
class EditorWidget;

/// What the tabs of block sets and sprite banks share: the list of the asset's animations on the left, the
/// editor of the selected one on the right, above it a line that says which one that is.
///
/// Adding, cloning and deleting animations are not undo steps: undo restores contents of animations, and
/// keeps none that is gone. Deleting therefore asks first.
class AnimationView : public QSplitter
{
    Q_OBJECT

public:
    /// Asks a question that is answered by yes or no.
    using Question = std::function<bool(const QString &title, const QString &text)>;

    /// Replaces the message box that asks whether an animation may be deleted.
    void setQuestion(const Question &question) { m_question = question; }

    [[nodiscard]] AnimationListWidget *list() const { return m_list; }
    /// The line that says which animation is shown.
    [[nodiscard]] QString title() const;

protected:
    /// Takes over list and editor.
    AnimationView(AnimationListWidget *list, EditorWidget *editor, QWidget *parent);

    /// The animations of the asset, in their order; none when it is gone.
    [[nodiscard]] virtual QList<Animation *> animations() const = 0;
    /// Adds a new animation to the asset; null when it is gone.
    [[nodiscard]] virtual Animation *createAnimation() = 0;
    /// Adds a copy of one of its animations to the asset.
    [[nodiscard]] virtual Animation *copyAnimation(Animation &animation) = 0;
    /// Removes an animation from the asset and destroys it.
    virtual void destroyAnimation(Animation &animation) = 0;
    /// The picture of a cell; null when it names nothing that is there.
    [[nodiscard]] virtual QImage cellPicture(const AnimationFrame::Cell &cell) const = 0;
    /// A cell that names this tile or sprite is to be edited.
    virtual void announceActivated(int index) = 0;
    /// The asset has a new animation, which is now shown.
    virtual void announceAdded(Animation &animation) { Q_UNUSED(animation) }
    /// An animation is going to be removed.
    virtual void announceRemoved(Animation &animation) { Q_UNUSED(animation) }

    /// Makes the list hold what the asset holds. To be called first by the subclass's constructor, then
    /// whenever the asset gains or loses animations.
    void syncList();
    /// Draws the cells of the frame anew.
    void repaintCells();
    /// Draws all cells and pictures anew, for tiles or sprites that have changed.
    void refreshPictures(int indexCount);

private:
    void showAnimation(Animation *animation);
    void addNewAnimation();
    void cloneAnimation(Animation *animation);
    void deleteAnimation();
    void addToList(const std::function<Animation *()> &add);
    [[nodiscard]] bool confirmsDeletion();

    AnimationListWidget *m_list;
    EditorWidget *m_editor;
    SectionHeader *m_title;
    QMetaObject::Connection m_titleConnection;
    Question m_question;
    bool m_adding = false; ///< an animation is being made that the list shows when it is finished
};

} // namespace AnimationEditor
