#include "editors/animation/editorwidget.h"

#include "editors/animation/animationtoolbar.h"
#include "ui/commands.h"
#include "ui/flowlayout.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QLabel>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

using namespace Quenmora::Ui;

namespace AnimationEditor {

namespace {

constexpr int UsualZoom = 8;
constexpr int Tick = 20; // milliseconds of the clock that frame delays count
constexpr int LongestDelay = std::numeric_limits<int>::max() / Tick - 1;

ToolPalette::Entry toggle(ToolButton button)
{
    ToolPalette::Entry entry = ToolPalette::entryOf(button);
    entry.kind = ToolPalette::Toggle;
    return entry;
}

} // namespace

EditorWidget::EditorWidget(AnimationToolBar *toolBar, QWidget *parent)
    : QWidget(parent)
    , m_timer(new QTimer(this))
    , m_onionSkin(new QAction(themedIcon(QStringLiteral(":/Onion")), tr("Onion Skin"), this))
    , m_toolBar(toolBar)
    , m_tools(new ToolPalette(Qt::Horizontal))
    , m_cellTools(new FlowLayout)
    , m_frameEditor(new FrameEditorWidget)
    , m_scroller(new QScrollArea)
    , m_control(new AnimationControlWidget)
{
    m_tools->nameCommands(QStringLiteral("animation"));
    m_tools->addEntry(ZoomIn);
    m_tools->addEntry(ZoomOut);
    for (const ToolButton button : {RotateCW, Flip, Mirror})
        m_tools->addEntry(toggle(button));
    m_index = addCellNumber(tr("Index:"), tr("The index in the selected cell"), 0);
    m_frameEditor->setZoom(UsualZoom);
    m_onionSkin->setCheckable(true);
    m_onionSkin->setToolTip(tr("Show the frame before faintly over this one"));
    m_onionSkin->setStatusTip(m_onionSkin->toolTip());
    m_onionSkin->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(Commands::add(m_onionSkin, QStringLiteral("animation.onionSkin")));
    connectParts();
}

void EditorWidget::buildPage()
{
    // what is laid out first is reached first by the keyboard
    auto *tools = new QWidget;
    tools->setLayout(m_cellTools);
    m_cellTools->setContentsMargins(0, 0, 0, 0);
    m_tools->setMinimumWidth(m_tools->sizeHint().width());
    m_cellTools->addWidget(m_tools);
    m_scroller->setWidget(m_frameEditor);
    m_scroller->setAlignment(Qt::AlignCenter);
    m_scroller->setFocusPolicy(Qt::NoFocus);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_toolBar);
    layout->addWidget(tools);
    layout->addWidget(m_scroller, 1);
    auto *onionSkin = new QToolButton;
    onionSkin->setDefaultAction(m_onionSkin);
    onionSkin->setAccessibleName(m_onionSkin->text());
    onionSkin->setAutoRaise(true);
    auto *below = new QHBoxLayout;
    below->addWidget(m_control, 1);
    below->addWidget(onionSkin);
    layout->addLayout(below);
    setAnimation(nullptr);
}

QSpinBox *EditorWidget::addCellNumber(const QString &label, const QString &toolTip, int maximum)
{
    auto *number = new QSpinBox;
    number->setRange(0, maximum);
    number->setToolTip(toolTip);
    number->setAccessibleName(QString(label).remove(u':'));
    number->setKeyboardTracking(false);
    auto *text = new QLabel(label);
    text->setBuddy(number);
    auto *part = new QWidget; // by itself, so that a narrow editor has each in a row of its own
    part->setMinimumHeight(m_tools->sizeHint().height());
    auto *layout = new QHBoxLayout(part);
    layout->setContentsMargins(6, 0, 6, 0);
    layout->addWidget(text);
    layout->addWidget(number);
    m_cellTools->addWidget(part);
    return number;
}

void EditorWidget::connectParts()
{
    connect(m_tools, &ToolPalette::actionActivated, this, &EditorWidget::changeTileState);
    connect(m_control, &AnimationControlWidget::buttonClicked, this, &EditorWidget::mediaControlButtonClicked);
    connect(m_timer, &QTimer::timeout, this, &EditorWidget::animate);
    connect(m_onionSkin, &QAction::toggled, this, &EditorWidget::showOnionSkin);
    connect(m_index, &QSpinBox::valueChanged, m_frameEditor, &FrameEditorWidget::setIndex);
    connect(m_frameEditor, &FrameEditorWidget::selectedCellChanged, this, [this](QPoint cell) {
        selectionChanged();
        const QPoint centre = m_frameEditor->cellRect(cell).center();
        if (cell != FrameEditorWidget::NoCell)
            m_scroller->ensureVisible(centre.x(), centre.y(), m_frameEditor->cellSize(), m_frameEditor->cellSize());
    });
    // through the editor: the animation that is shown then, if any
    connect(m_toolBar, &AnimationToolBar::nameChanged, this, [this](const QString &name) {
        if (m_animation)
            m_animation->setName(name);
    });
    connect(m_toolBar, &AnimationToolBar::widthChanged, this, [this](int width) {
        if (m_animation)
            m_animation->setWidth(width);
    });
    connect(m_toolBar, &AnimationToolBar::heightChanged, this, [this](int height) {
        if (m_animation)
            m_animation->setHeight(height);
    });
    connect(m_toolBar, &AnimationToolBar::delayChanged, this, &EditorWidget::setAnimationDelay);
}

// What is shown

void EditorWidget::setAnimation(Animation *animation)
{
    stop();
    if (m_animation)
        m_animation->disconnect(this);
    m_animation = animation;
    m_current = 0;
    setEnabled(animation);
    m_frameEditor->setAnimation(animation);
    if (animation) {
        connect(animation, &Animation::nameChanged, this, &EditorWidget::refresh);
        connect(animation, &Animation::sizeChanged, this, &EditorWidget::refresh);
        connect(animation, &Animation::delayChanged, this, &EditorWidget::refresh);
        connect(animation, &Animation::frameChanged, this, &EditorWidget::selectionChanged);
        connect(animation, &Animation::contentChanged, this, &EditorWidget::refresh);
        connect(animation, &QObject::destroyed, this, [this] { setAnimation(nullptr); });
        animation->setDelay(animation->delay());
    }
    refresh();
}

void EditorWidget::refresh()
{
    if (m_animation)
        showProperties();
    updateInterval();
    // frames may have gone
    setCurrentFrame(std::min(m_current, m_animation ? m_animation->frameCount() - 1 : 0));
}

void EditorWidget::showProperties()
{
    m_toolBar->setName(m_animation->name());
    m_toolBar->setFrameSize(m_animation->size());
    m_toolBar->setDelay(m_animation->delay());
}

void EditorWidget::selectionChanged()
{
    showCell(m_frameEditor->selectedCellContent());
}

void EditorWidget::showCell(const std::optional<AnimationFrame::Cell> &cell)
{
    const AnimationFrame::Cell shown = cell.value_or(AnimationFrame::Cell());
    const std::pair<ToolButton, bool> flags[] = {{RotateCW, shown.rotate}, {Flip, shown.flip}, {Mirror, shown.mirror}};
    for (const auto &[button, flag] : flags) {
        m_tools->action(button)->setChecked(flag);
        m_tools->setToolEnabled(button, cell.has_value());
    }
    m_index->setEnabled(cell.has_value());
    showNumber(m_index, shown.index);
}

void EditorWidget::showNumber(QSpinBox *field, int number)
{
    const QSignalBlocker blocker(field);
    field->setValue(number);
}

void EditorWidget::setIndexCount(int count)
{
    {
        const QSignalBlocker blocker(m_index);
        m_index->setMaximum(std::max(count - 1, 0));
    }
    m_frameEditor->setIndexCount(count);
    selectionChanged();
}

void EditorWidget::changeTileState(ToolButton tool, bool checked)
{
    switch (tool) {
    case ZoomIn:
        m_frameEditor->zoomIn();
        break;
    case ZoomOut:
        m_frameEditor->zoomOut();
        break;
    case RotateCW:
        m_frameEditor->setRotated(checked);
        break;
    case Flip:
        m_frameEditor->setFlipped(checked);
        break;
    case Mirror:
        m_frameEditor->setMirrored(checked);
        break;
    default:
        qWarning("Unhandled tool button");
        break;
    }
}

// Frames and playback

void EditorWidget::setCurrentFrame(int index)
{
    m_current = std::max(index, 0);
    m_frameEditor->setCurrentFrame(m_current);
    m_control->setFrame(m_current + 1, m_animation ? m_animation->frameCount() : 1);
    selectionChanged();
    update();
}

void EditorWidget::mediaControlButtonClicked(AnimationControlWidget::Action action, bool checked)
{
    if (!m_animation)
        return;
    const int current = m_current;
    switch (action) {
    case AnimationControlWidget::First:
        setCurrentFrame(0);
        break;
    case AnimationControlWidget::Previous:
        if (current > 0)
            setCurrentFrame(current - 1);
        break;
    case AnimationControlWidget::Play:
        play();
        break;
    case AnimationControlWidget::Pause:
        togglePause(checked);
        break;
    case AnimationControlWidget::Stop:
        stop();
        break;
    case AnimationControlWidget::Next:
        if (current + 1 < m_animation->frameCount())
            setCurrentFrame(current + 1);
        break;
    case AnimationControlWidget::Last:
        setCurrentFrame(m_animation->frameCount() - 1);
        break;
    case AnimationControlWidget::AddFrame:
        m_animation->addFrame();
        setCurrentFrame(m_animation->frameCount() - 1);
        break;
    case AnimationControlWidget::DeleteFrame:
        m_animation->deleteFrame(current);
        setCurrentFrame(current - 1);
        break;
    case AnimationControlWidget::Loop:
    case AnimationControlWidget::PingPong:
        break; // asked for when it matters
    }
}

bool EditorWidget::isPlaying() const
{
    return m_timer->isActive();
}

int EditorWidget::frameInterval() const
{
    return m_timer->interval();
}

void EditorWidget::play()
{
    if (!m_animation)
        return;
    m_control->action(AnimationControlWidget::Pause)->setChecked(false);
    m_timer->setTimerType(Qt::PreciseTimer);
    updateInterval();
    m_timer->start();
    showOnionSkin();
}

void EditorWidget::showOnionSkin()
{
    // in motion it would only blur what is shown
    m_frameEditor->setOnionSkin(m_onionSkin->isChecked() && !isPlaying());
}

void EditorWidget::pause()
{
    m_timer->stop();
    showOnionSkin();
}

void EditorWidget::stop()
{
    m_timer->stop();
    showOnionSkin();
    m_control->action(AnimationControlWidget::Pause)->setChecked(false);
}

void EditorWidget::togglePause(bool)
{
    pause();
}

int EditorWidget::nextFrame()
{
    return m_current + 1 < m_animation->frameCount() ? m_current + 1 : 0;
}

void EditorWidget::animate()
{
    if (m_animation)
        setCurrentFrame(nextFrame());
}

void EditorWidget::setAnimationDelay(int delay)
{
    if (!m_animation)
        return;
    m_animation->setDelay(delay);
    updateInterval();
}

void EditorWidget::updateInterval()
{
    const int delay = std::clamp(m_animation ? m_animation->delay() : 0, 0, LongestDelay);
    const int interval = (delay + 1) * Tick;
    // a running timer begins anew when it is set
    if (interval != m_timer->interval())
        m_timer->setInterval(interval);
}

void EditorWidget::hideEvent(QHideEvent *event)
{
    stop();
    QWidget::hideEvent(event);
}

} // namespace AnimationEditor
