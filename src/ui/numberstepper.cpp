#include "ui/numberstepper.h"

#include "ui/indexsuffix.h"
#include "ui/svgiconengine.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QToolButton>

namespace {

QToolButton *makeButton(const QString &icon, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setIcon(themedIcon(icon));
    button->setAutoRaise(true);
    button->setAutoRepeat(true);
    return button;
}

} // namespace

NumberStepper::NumberStepper(QWidget *parent)
    : QWidget(parent)
    , m_back(makeButton(QStringLiteral(":/ChevronLeft"), this))
    , m_number(new QSpinBox(this))
    , m_last(new QLabel(this))
    , m_forward(makeButton(QStringLiteral(":/ChevronRight"), this))
{
    if (isRightToLeft()) {
        const QIcon back = m_back->icon();
        m_back->setIcon(m_forward->icon());
        m_forward->setIcon(back);
    }
    m_number->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_number->setAlignment(Qt::AlignHCenter);
    m_number->setKeyboardTracking(false); // a half-typed number selects nothing
    setFocusProxy(m_number);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_back);
    layout->addWidget(m_number);
    layout->addWidget(m_last);
    layout->addWidget(m_forward);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);

    connect(m_back, &QToolButton::clicked, m_number, &QSpinBox::stepDown);
    connect(m_forward, &QToolButton::clicked, m_number, &QSpinBox::stepUp);
    connect(m_number, &QSpinBox::valueChanged, this, [this](int value) {
        updateState();
        emit valueChanged(value);
    });
    setItemName(tr("Number"));
    setRange(1, 1);
}

int NumberStepper::value() const
{
    return m_number->value();
}

void NumberStepper::setRange(int minimum, int maximum)
{
    m_number->setRange(minimum, maximum);
    m_last->setText(tr("of %1").arg(m_number->maximum()));
    updateState();
}

void NumberStepper::setItemName(const QString &name)
{
    m_number->setAccessibleName(name);
    const QString back = tr("%1: previous").arg(name);
    m_back->setToolTip(back);
    m_back->setAccessibleName(back);
    const QString forward = tr("%1: next").arg(name);
    m_forward->setToolTip(forward);
    m_forward->setAccessibleName(forward);
}

void NumberStepper::showIndex()
{
    showIndexSuffix(*m_number);
}

void NumberStepper::setValue(int value)
{
    m_number->setValue(value);
}

void NumberStepper::updateState()
{
    m_back->setEnabled(value() > m_number->minimum());
    m_forward->setEnabled(value() < m_number->maximum());
}
