#pragma once

#include "editors/animation/animationcontrolwidget.h"
#include "editors/animation/animationtoolbar.h"
#include "editors/animation/animationview.h"
#include "editors/animation/editorwidget.h"
#include "editors/animation/frameeditorwidget.h"
#include "editors/common/animationlistwidget.h"
#include "editors/common/dragdata.h"
#include "support/randomhands.h"
#include "ui/toolpalette.h"

#include <QSpinBox>

/// Edits the animations of the block set or sprite bank in front at random.
class RandomAnimations : protected virtual RandomHands
{
protected:
    RandomAnimations()
    {
        addList();
        const auto chosen = [this] {
            auto *editor = front<View>() ? front<View>()->findChild<Editor *>() : nullptr;
            return editor && editor->animation() ? editor : nullptr;
        };
        addFor<2>(chosen, "animation cell", Undoable, [this](Editor &editor) { editCell(editor); });
        addFor(chosen, "size and delay", Undoable, [this](Editor &editor) {
            if (QSpinBox *field = any(editor.toolBar()->findChildren<QSpinBox *>()))
                field->setValue(field->minimum() + number(6));
        });
    }

private:
    using View = AnimationEditor::AnimationView;
    using Editor = AnimationEditor::EditorWidget;

    void addList()
    {
        addFor([this] { return front<View>(); }, "animation list", Lasting,
               [this](View &page) {
                   page.setQuestion([](const QString &, const QString &) { return true; });
                   AnimationEditor::AnimationListWidget *list = page.list();
                   const QPointer<Animation> animation = any(list->animations());
                   list->select(animation);
                   const bool room = list->animations().size() < 6;
                   const int what = number(8);
                   if (what == 0)
                       emit list->removeRequested();
                   else if (what == 1 && room)
                       emit list->cloneRequested(animation);
                   else if (what < 4 && room)
                       emit list->addRequested();
               });
    }

    void editCell(Editor &editor)
    {
        using namespace Quenmora::Ui;
        AnimationEditor::FrameEditorWidget *frame = editor.frameEditor();
        const QSize size = editor.animation()->size();
        if (size.isEmpty())
            return;
        const QPoint cell = frame->cellRect({number(size.width()), number(size.height())}).center();
        click(frame, cell);
        const bool tiles = editor.animation()->kind() == Animation::Tiles;
        const auto dropOn = [&] {
            drop(*frame, cell, cell,
                 tiles ? TileDrag{number(8), number(16)}.toMimeData() : SpriteDrag{number(4)}.toMimeData());
        };
        const auto turn = [&] { editor.tools()->toggleAction(any(QList{RotateCW, Flip, Mirror})); };
        oneOf(
            dropOn, turn, [&] { frame->setIndex(number(8)); }, [&] { frame->setOffset(number(16)); });
    }
};
