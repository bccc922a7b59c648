#include "ui/sectionheader.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

SectionHeader::SectionHeader(const QString &text, QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel(text, this))
    , m_layout(new QHBoxLayout(this))
{
    QFont bold = m_text->font();
    bold.setBold(true);
    m_text->setFont(bold);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setMinimumWidth(0);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name must not widen a dock

    m_layout->setContentsMargins(4, 2, 2, 2);
    m_layout->setSpacing(1);
    m_layout->addWidget(m_text, 1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QString SectionHeader::text() const
{
    return m_text->text();
}

QToolButton *SectionHeader::addActionButton(QAction *action)
{
    auto *button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setAccessibleName(action->text());
    button->setAutoRaise(true);
    m_layout->addWidget(button);
    return button;
}

void SectionHeader::addTool(QWidget *widget)
{
    m_layout->addWidget(widget);
}

void SectionHeader::setText(const QString &text)
{
    m_text->setText(text);
    m_text->setToolTip(text);
}
