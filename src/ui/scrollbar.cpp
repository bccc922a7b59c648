#include "ui/scrollbar.h"

#include "ui/svgiconengine.h"

#include <QBoxLayout>
#include <QScrollBar>
#include <QToolButton>

namespace {

// the values that the enumeration gives to the ends; the widget kit stands below the folder that names them
constexpr Quenmora::Position Begin{0};
constexpr Quenmora::Position End{1};

} // namespace

ScrollBar::ScrollBar(Qt::Orientation orientation, QWidget *parent)
    : QWidget(parent)
    , m_bar(new QScrollBar(orientation, this))
{
    const bool horizontal = orientation == Qt::Horizontal;
    auto *addBegin =
        makeButton(QStringLiteral(":/Plus"), horizontal ? tr("Add a column on the left") : tr("Add a row at the top"));
    auto *removeBegin = makeButton(QStringLiteral(":/Minus"),
                                   horizontal ? tr("Remove the column on the left") : tr("Remove the row at the top"));
    auto *removeEnd =
        makeButton(QStringLiteral(":/Minus"),
                   horizontal ? tr("Remove the column on the right") : tr("Remove the row at the bottom"));
    auto *addEnd = makeButton(QStringLiteral(":/Plus"),
                              horizontal ? tr("Add a column on the right") : tr("Add a row at the bottom"));
    m_buttons = {addBegin, removeBegin, removeEnd, addEnd};
    m_removeButtons = {removeBegin, removeEnd};

    auto *layout = new QBoxLayout(horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(addBegin);
    layout->addWidget(removeBegin);
    layout->addWidget(m_bar, 1);
    layout->addWidget(removeEnd);
    layout->addWidget(addEnd);
    setSizePolicy(m_bar->sizePolicy());
    if (horizontal) {
        setLayoutDirection(Qt::LeftToRight); // the map itself does not turn round
    }

    connect(m_bar, &QScrollBar::valueChanged, this, &ScrollBar::valueChanged);
    connect(addBegin, &QToolButton::clicked, this, [this] { emit add(Begin); });
    connect(removeBegin, &QToolButton::clicked, this, [this] { emit remove(Begin); });
    connect(removeEnd, &QToolButton::clicked, this, [this] { emit remove(End); });
    connect(addEnd, &QToolButton::clicked, this, [this] { emit add(End); });
}

QToolButton *ScrollBar::makeButton(const QString &icon, const QString &text)
{
    const int extent = m_bar->orientation() == Qt::Horizontal ? m_bar->sizeHint().height() : m_bar->sizeHint().width();
    auto *button = new QToolButton(this);
    button->setIcon(themedIcon(icon));
    button->setIconSize({extent - 4, extent - 4});
    button->setFixedSize(extent, extent);
    button->setAutoRaise(true);
    button->setToolTip(text);
    button->setAccessibleName(text);
    return button;
}

Qt::Orientation ScrollBar::orientation() const
{
    return m_bar->orientation();
}

int ScrollBar::value() const
{
    return m_bar->value();
}

int ScrollBar::minimum() const
{
    return m_bar->minimum();
}

int ScrollBar::maximum() const
{
    return m_bar->maximum();
}

void ScrollBar::setRange(int minimum, int maximum)
{
    m_bar->setRange(minimum, maximum);
}

void ScrollBar::setPageStep(int step)
{
    m_bar->setPageStep(step);
}

void ScrollBar::setRemoveEnabled(bool enabled)
{
    for (QToolButton *button : std::as_const(m_removeButtons)) {
        button->setEnabled(enabled);
    }
}

void ScrollBar::setValue(int value)
{
    m_bar->setValue(value);
}
