#include "editors/animation/animationcontrolwidget.h"

#include "ui/commands.h"
#include "ui/flowlayout.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr QSize ButtonSize(34, 34);
constexpr QSize IconSize(24, 24);

} // namespace

AnimationControlWidget::AnimationControlWidget(QWidget *parent) : QWidget(parent), m_label(new QLabel(this))
{
    auto *layout = new FlowLayout(this); // a narrow editor gets two rows
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(1);
    const auto add = [this, layout](Action action, const char *name, const QString &toolTip, const char *icon,
                                    bool checkable = false) {
        auto *added = new QAction(themedIcon(QLatin1String(icon)), toolTip, this);
        added->setToolTip(toolTip);
        added->setCheckable(checkable);
        connect(added, &QAction::triggered, this, [this, action](bool checked) { trigger(action, checked); });
        added->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(Commands::add(added, QLatin1String("animation.") + QLatin1String(name)));
        m_actions.insert(action, added);

        auto *button = new QToolButton(this);
        button->setDefaultAction(added);
        button->setAccessibleName(toolTip);
        button->setAutoRaise(true);
        button->setIconSize(IconSize);
        button->setFixedSize(ButtonSize);
        layout->addWidget(button);
    };
    add(First, "firstFrame", tr("Goto first frame"), ":/Media/Start");
    add(Previous, "previousFrame", tr("Previous frame"), ":/Arrow/W");
    add(Play, "play", tr("Play"), ":/Media/Play");
    add(Pause, "pause", tr("Pause playback"), ":/Media/Pause", true);
    add(Stop, "stop", tr("Stop"), ":/Media/Stop");
    add(Next, "nextFrame", tr("Next frame"), ":/Arrow/E");
    add(Last, "lastFrame", tr("Goto last frame"), ":/Media/End");
    add(AddFrame, "addFrame", tr("Add a frame"), ":/NewIcon");
    add(DeleteFrame, "deleteFrame", tr("Delete current frame"), ":/Trashcan");
    add(Loop, "loop", tr("Loop"), ":/Media/Loop", true);
    add(PingPong, "pingPong", tr("Ping pong"), ":/Media/PingPong", true);
    m_label->setMinimumHeight(ButtonSize.height());
    m_label->setContentsMargins(6, 0, 0, 0);
    layout->addWidget(m_label);

    auto *ways = new QActionGroup(this);
    ways->addAction(action(Loop));
    ways->addAction(action(PingPong));
    action(Loop)->setChecked(true);
    action(PingPong)->setEnabled(false);
    setFrame(1, 1);
}

void AnimationControlWidget::setFrame(int frame, int count)
{
    m_frameCount = std::max(count, 0);
    m_frame = std::min(std::max(frame, 1), m_frameCount);
    m_label->setText(tr("Frame %1 of %2").arg(m_frame).arg(m_frameCount));
}

QString AnimationControlWidget::text() const
{
    return m_label->text();
}

void AnimationControlWidget::trigger(Action action, bool checked)
{
    switch (action) {
    case First:
        setFrame(1, m_frameCount);
        break;
    case Previous:
        setFrame(m_frame - 1, m_frameCount);
        break;
    case Next:
        setFrame(m_frame + 1, m_frameCount);
        break;
    case Last:
        setFrame(m_frameCount, m_frameCount);
        break;
    case Play:
    case Stop:
        this->action(Pause)->setChecked(false);
        break;
    default:
        break;
    }
    emit buttonClicked(action, checked);
}
