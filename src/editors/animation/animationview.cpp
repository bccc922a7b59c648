#include "editors/animation/animationview.h"

#include "editors/animation/editorwidget.h"
#include "editors/common/animationlistwidget.h"
#include "ui/question.h"
#include "ui/sectionheader.h"

#include <QScopedValueRollback>
#include <QScrollArea>

#include <algorithm>

namespace AnimationEditor {

namespace {

constexpr int ListWidth = 160;

constexpr int LeastListWidth = 120;

} // namespace

AnimationView::AnimationView(AnimationListWidget *list, EditorWidget *editor, QWidget *parent)
    : QSplitter(Qt::Horizontal, parent)
    , m_list(list)
    , m_editor(editor)
    , m_title(new SectionHeader(QString()))
{
    setFocusProxy(m_list); // before it is a part: else Qt moves it behind the editor in the order of Tab
    addWidget(SectionHeader::over(m_list, new SectionHeader(tr("Animations"))));
    auto *scroller = new QScrollArea; // for windows that are too low for all of it
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus); // what is in it has the keyboard
    scroller->setWidgetResizable(true);
    scroller->setMinimumWidth(m_editor->minimumSizeHint().width());
    scroller->setWidget(m_editor);
    addWidget(SectionHeader::over(scroller, m_title));
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);
    setChildrenCollapsible(false);
    constexpr int Letters = 22; // of a name, or of the line that tells frames and size
    const int width = std::max(ListWidth, Letters * fontMetrics().averageCharWidth());
    setSizes({width, 3 * ListWidth});
    m_list->setMinimumWidth(width * LeastListWidth / ListWidth);

    FrameEditorWidget *cells = m_editor->frameEditor();
    cells->setCellRenderer([this](const AnimationFrame::Cell &cell) { return cellPicture(cell); });
    connect(cells, &FrameEditorWidget::cellActivated, this, [this, cells] {
        if (const auto cell = cells->selectedCellContent())
            announceActivated(cell->index);
    });
    connect(m_list, &AnimationListWidget::selectedItemChanged, this, &AnimationView::showAnimation);
    connect(m_list, &AnimationListWidget::addRequested, this, &AnimationView::addNewAnimation);
    connect(m_list, &AnimationListWidget::cloneRequested, this, &AnimationView::cloneAnimation);
    connect(m_list, &AnimationListWidget::removeRequested, this, &AnimationView::deleteAnimation);
    showAnimation(nullptr);
}

QString AnimationView::title() const
{
    return m_title->text();
}

void AnimationView::showAnimation(Animation *animation)
{
    disconnect(m_titleConnection);
    m_editor->setAnimation(animation);
    if (!animation) {
        m_title->setText(tr("No animation selected"));
        return;
    }
    const auto showName = [this](const QString &name) { m_title->setText(tr("Animation: %1").arg(name)); };
    m_titleConnection = connect(animation, &Animation::nameChanged, this, showName);
    showName(animation->name());
}

void AnimationView::syncList()
{
    if (m_adding)
        return;
    const QList<Animation *> present = animations();
    const QList<QPointer<Animation>> listed = m_list->animations();
    for (const QPointer<Animation> &animation : listed) {
        if (animation && !present.contains(animation))
            m_list->removeAnimation(animation);
    }
    for (Animation *animation : present)
        m_list->addAnimation(animation);
}

void AnimationView::repaintCells()
{
    m_editor->frameEditor()->update();
    m_list->refreshPictures();
}

void AnimationView::refreshPictures(int indexCount)
{
    m_editor->setIndexCount(indexCount);
    repaintCells();
}

// Adding and removing

void AnimationView::addToList(const std::function<Animation *()> &add)
{
    Animation *added = nullptr;
    {
        const QScopedValueRollback adding(m_adding, true);
        added = add();
    }
    if (!added)
        return;
    syncList();
    m_list->select(added);
    announceAdded(*added);
}

void AnimationView::addNewAnimation()
{
    addToList([this] { return createAnimation(); });
}

void AnimationView::cloneAnimation(Animation *animation)
{
    if (animation)
        addToList([this, animation] { return copyAnimation(*animation); });
}

void AnimationView::deleteAnimation()
{
    m_editor->setAnimation(nullptr);
    if (!m_list->selected())
        return;
    const QPointer<Animation> animation = m_list->selected();
    const QPointer<AnimationView> self(this);
    const bool confirmed = confirmsDeletion();
    // while the question was open, anything may have gone
    if (!self)
        return;
    if (!confirmed || !animation) {
        m_editor->setAnimation(m_list->selected());
        return;
    }
    announceRemoved(*animation);
    m_list->removeAnimation(animation);
    destroyAnimation(*animation);
}

bool AnimationView::confirmsDeletion()
{
    const QString title = tr("Delete?");
    const QString text = tr("Are you sure you want to remove this animation?");
    if (const Question question = m_question)
        return question(title, text);
    return askYesOrNo(this, title, text);
}

} // namespace AnimationEditor
