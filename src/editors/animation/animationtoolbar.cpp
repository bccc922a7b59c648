#include "editors/animation/animationtoolbar.h"

#include "model/assetname.h"
#include "ui/flowlayout.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace AnimationEditor {

namespace {

constexpr int NameWidth = 140;

/// Controls in as many rows as they need: a tool bar by itself hides what has no room behind a button that
/// the keyboard does not reach.
class Rows final : public QWidget
{
public:
    explicit Rows(QWidget *parent) : QWidget(parent)
    {
        auto *layout = new FlowLayout(this);
        layout->setContentsMargins(2, 2, 2, 2);
        layout->setSpacing(4);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize sizeHint() const override { return minimumSizeHint(); }

protected:
    void resizeEvent(QResizeEvent *) override { setFixedHeight(layout()->heightForWidth(width())); }
};

void showValue(QSpinBox *field, int value)
{
    const QSignalBlocker blocker(field);
    field->setValue(value);
}

} // namespace

AnimationToolBar::AnimationToolBar(const QString &widthToolTip, const QString &heightToolTip, QWidget *parent)
    : QToolBar(tr("Animation"), parent)
    , m_name(new QLineEdit)
{
    setMovable(false);
    setFloatable(false);
    auto *rows = new Rows(this);
    m_rows = static_cast<FlowLayout *>(rows->layout());
    addWidget(rows);
    m_name->setFixedWidth(NameWidth);
    m_name->setToolTip(tr("The name of the animation"));
    addControl(tr("Name"), m_name);
    m_width = addNumber(tr("W:"), widthToolTip, 1, MaximumSide);
    m_height = addNumber(tr("H:"), heightToolTip, 1, MaximumSide);
    m_width->setAccessibleName(tr("Width"));
    m_height->setAccessibleName(tr("Height"));
    m_delay =
        addNumber(tr("Delay:"), tr("Set the delay between animation frames\n0 = No Delay, 1 = 25fps, 2 = 12.5fps"), 0,
                  MaximumDelay);
    m_delay->setSpecialValueText(tr("None"));

    m_name->setMaxLength(AssetName::MaxLength);
    connect(m_name, &QLineEdit::textChanged, this, &AnimationToolBar::nameChanged);
    connect(m_width, &QSpinBox::valueChanged, this, &AnimationToolBar::widthChanged);
    connect(m_height, &QSpinBox::valueChanged, this, &AnimationToolBar::heightChanged);
    connect(m_delay, &QSpinBox::valueChanged, this, &AnimationToolBar::delayChanged);
}

void AnimationToolBar::addControl(const QString &label, QWidget *control, Place place)
{
    auto *pair = new QWidget;
    auto *layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    if (!label.isEmpty()) {
        auto *text = new QLabel(label);
        text->setBuddy(control);
        layout->addWidget(text);
        control->setAccessibleName(QString(label).remove(u':'));
    }
    layout->addWidget(control);
    m_rows->insertWidget(place == AfterName ? 1 : m_rows->count(), pair);
    if (place == AfterName)
        setTabOrder(m_name, control);
}

QSpinBox *AnimationToolBar::addNumber(const QString &label, const QString &toolTip, int minimum, int maximum)
{
    auto *number = new QSpinBox;
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
