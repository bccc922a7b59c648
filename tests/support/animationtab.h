#pragma once

#include "editors/animation/editorwidget.h"
#include "editors/common/animationlistwidget.h"
#include "model/project.h"
#include "undo/editrecorder.h"

#include <QAction>
#include <QListWidget>
#include <QTest>
#include <QUndoStack>

#include <memory>

/// The tab of an asset with animations, in a project whose edits are recorded on one stack. A derived fixture
/// makes the asset and opens the tab.
template <typename View>
struct AnimationTab
{
    using Control = AnimationControlWidget;

    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Colours");
    QUndoStack stack;
    std::unique_ptr<EditRecorder> recorder;
    std::unique_ptr<View> view;
    bool answer = true; ///< to the question whether an animation is to be deleted
    QStringList questions;

    template <typename Asset>
    void open(const QPointer<Asset> &asset)
    {
        recorder = std::make_unique<EditRecorder>(&project, [this](const QUuid &) { return &stack; });
        view = std::make_unique<View>(asset);
        view->setQuestion([this](const QString &title, const QString &text) {
            questions += title + " " + text;
            return answer;
        });
        view->resize(900, 500);
        view->show();
        view->activateWindow();
        (void)QTest::qWaitForWindowActive(view.get());
    }
    auto *editor() const { return view->editor(); }
    auto *cells() const { return editor()->frameEditor(); }
    auto *list() const { return view->list(); }
    void press(Control::Action action) const { editor()->control()->action(action)->trigger(); }
    /// "1 of 3"
    QString label() const { return editor()->control()->text().remove("Frame "); }
    /// What the list says.
    QStringList texts() const
    {
        QStringList texts;
        const auto *items = list()->template findChild<QListWidget *>();
        for (int row = 0; row < items->count(); ++row)
            texts += items->item(row)->text();
        return texts;
    }
    /// The frames that follow one another when playing.
    QList<int> played(int count) const
    {
        QList<int> frames;
        QObject context;
        QObject::connect(cells(), &AnimationEditor::FrameEditorWidget::currentFrameChanged, &context,
                         [&](int frame) { frames += frame; });
        press(Control::Play);
        (void)QTest::qWaitFor([&] { return frames.size() >= count; });
        press(Control::Stop);
        return frames.first(std::min(count, int(frames.size())));
    }
};
