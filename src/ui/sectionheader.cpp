#include "ui/sectionheader.h"

#include "ui/plaintext.h"

#include <QLabel>
#include <QVBoxLayout>

SectionHeader::SectionHeader(const QString &text, QWidget *parent) : QWidget(parent), m_text(new QLabel(text, this))
{
    QFont bold = m_text->font();
    bold.setBold(true);
    m_text->setFont(bold);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setMinimumWidth(0);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name must not widen a dock

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 2, 2, 2);
    layout->addWidget(m_text);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QWidget *SectionHeader::over(QWidget *content, SectionHeader *header)
{
    auto *part = new QWidget;
    auto *layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(header);
    layout->addWidget(content, 1);
    return part;
}

QString SectionHeader::text() const
{
    return m_text->text();
}

void SectionHeader::setText(const QString &text)
{
    m_text->setText(text);
    m_text->setToolTip(plainText(text));
}
