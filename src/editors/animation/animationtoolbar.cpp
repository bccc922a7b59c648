#include "editors/animation/animationtoolbar.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace AnimationEditor {

namespace {

constexpr int LeastNameWidth = 80;
constexpr int LargestNameWidth = 280;

void showValue(QSpinBox *field, int value)
{
    const QSignalBlocker blocker(field);
    field->setValue(value);
}

} // namespace

AnimationToolBar::AnimationToolBar(const QString &widthToolTip, const QString &heightToolTip, QWidget *parent)
    : QToolBar(tr("Animation"), parent)
    , m_name(new QLineEdit(this))
{
    setMovable(false);
    setFloatable(false);
    m_name->setMinimumWidth(LeastNameWidth);
    m_name->setMaximumWidth(LargestNameWidth);
    m_name->setToolTip(tr("The name of the animation"));
    addControl(tr("Name"), m_name);
    m_afterName = addSeparator();
    m_width = addNumber(tr("W:"), widthToolTip, 1, MaximumSide);
    m_height = addNumber(tr("H:"), heightToolTip, 1, MaximumSide);
    m_width->setAccessibleName(tr("Width"));
    m_height->setAccessibleName(tr("Height"));
    addSeparator();
    m_delay =
        addNumber(tr("Delay:"), tr("Set the delay between animation frames\n0 = No Delay, 1 = 25fps, 2 = 12.5fps"), 0,
                  MaximumDelay);
    m_delay->setSpecialValueText(tr("None"));

    connect(m_name, &QLineEdit::textChanged, this, &AnimationToolBar::nameChanged);
    connect(m_width, &QSpinBox::valueChanged, this, &AnimationToolBar::widthChanged);
    connect(m_height, &QSpinBox::valueChanged, this, &AnimationToolBar::heightChanged);
    connect(m_delay, &QSpinBox::valueChanged, this, &AnimationToolBar::delayChanged);
}

void AnimationToolBar::addControl(const QString &label, QWidget *control, Place place)
{
    QAction *before = place == AfterName ? m_afterName : nullptr;
    if (!label.isEmpty()) {
        auto *text = new QLabel(label, this);
        text->setContentsMargins(6, 0, 4, 0);
        text->setBuddy(control);
        insertWidget(before, text);
        control->setAccessibleName(QString(label).remove(u':'));
    }
    insertWidget(before, control);
    if (before)
        setTabOrder(m_name, control);
}

QSpinBox *AnimationToolBar::addNumber(const QString &label, const QString &toolTip, int minimum, int maximum)
{
    auto *number = new QSpinBox(this);
    number->setRange(minimum, maximum);
    number->setToolTip(toolTip);
    // on the way to 12 a width of 1 would cut the frames
    number->setKeyboardTracking(false);
    addControl(label, number);
    return number;
}

void AnimationToolBar::setName(const QString &name)
{
    if (name == m_name->text())
        return; // leaves the cursor where it is
    const QSignalBlocker blocker(m_name);
    m_name->setText(name);
}

void AnimationToolBar::setFrameSize(QSize size)
{
    showValue(m_width, size.width());
    showValue(m_height, size.height());
}

void AnimationToolBar::setDelay(int delay)
{
    showValue(m_delay, delay);
}

} // namespace AnimationEditor
