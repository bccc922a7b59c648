#include "editors/animation/spriteeditorview.h"

#include "editors/animation/spriteanimationeditorwidget.h"
#include "editors/common/animationlistwidget.h"
#include "model/spriteanim.h"

namespace SpriteEditor {

using AnimationEditor::AnimationListWidget;

View::View(const QPointer<SpriteBank> &bank, QWidget *parent) : View(bank, new AnimationEditorWidget, parent) { }

View::View(const QPointer<SpriteBank> &bank, AnimationEditorWidget *editor, QWidget *parent)
    : AnimationView(new AnimationListWidget(AnimationListWidget::Buttons | AnimationListWidget::ContextMenu
                                            | AnimationListWidget::Details),
                    editor, parent)
    , m_bank(bank)
    , m_editor(editor)
{
    if (m_bank) {
        connect(m_bank, &SpriteBank::animationsChanged, this, &View::syncList);
        connect(m_bank, &QObject::destroyed, this, &View::syncList);
        connect(m_bank, &SpriteBank::imageChanged, this, &View::showSprites);
        connect(m_bank, &SpriteBank::countChanged, this, &View::showSprites);
        connect(m_bank, &SpriteBank::structureChanged, this, &View::showSprites);
        connect(m_bank, &SpriteBank::restored, this, &View::showSprites);
        connect(m_bank, &SpriteBank::coloursChanged, this, &View::showSprites);
        connect(m_bank, &SpriteBank::shownColoursChanged, this, &View::repaintCells);
    }
    showSprites();
    syncList();
}

void View::showSprites()
{
    refreshPictures(m_bank ? m_bank->count() : 0);
}

QImage View::cellPicture(const AnimationFrame::Cell &cell) const
{
    if (!m_bank || cell.index < 0 || cell.index >= m_bank->count())
        return {};
    return m_bank->shownSpriteImage(cell.index, cell.rotate, cell.flip, cell.mirror);
}

QList<Animation *> View::animations() const
{
    QList<Animation *> list;
    if (m_bank) {
        for (const QPointer<SpriteAnim> &animation : m_bank->animations())
            list.append(animation);
    }
    return list;
}

Animation *View::createAnimation()
{
    return m_bank ? m_bank->newAnimation().data() : nullptr;
}

Animation *View::copyAnimation(Animation &animation)
{
    const auto *source = qobject_cast<SpriteAnim *>(&animation);
    const QPointer<SpriteAnim> copy = m_bank && source ? m_bank->newAnimation() : nullptr;
    if (copy)
        source->copyTo(*copy);
    return copy;
}

void View::destroyAnimation(Animation &animation)
{
    if (m_bank)
        m_bank->deleteAnimation(animation.id());
}

} // namespace SpriteEditor
