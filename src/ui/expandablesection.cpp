#include "ui/expandablesection.h"

#include "ui/svgiconengine.h"

#include <QToolButton>
#include <QVBoxLayout>

ExpandableSection::ExpandableSection(const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_heading(new QToolButton(this))
    , m_layout(new QVBoxLayout(this))
{
    m_heading->setText(title);
    m_heading->setAccessibleName(title);
    m_heading->setCheckable(true);
    m_heading->setAutoRaise(true);
    m_heading->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_heading->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont bold = m_heading->font();
    bold.setBold(true);
    m_heading->setFont(bold);

    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2);
    m_layout->addWidget(m_heading);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    connect(m_heading, &QToolButton::toggled, this, [this](bool expanded) {
        showState(expanded);
        emit expandedChanged(expanded);
    });
    showState(false);
}

void ExpandableSection::setContent(QWidget *content)
{
    if (content == m_content) {
        return;
    }
    delete m_content;
    m_content = content;
    if (m_content) {
        m_layout->addWidget(m_content);
        m_content->setVisible(isExpanded());
    }
}

bool ExpandableSection::isExpanded() const
{
    return m_heading->isChecked();
}

void ExpandableSection::setExpanded(bool expanded)
{
    m_heading->setChecked(expanded);
}

void ExpandableSection::showState(bool expanded)
{
    if (isRightToLeft()) { // where styles draw arrows on the wrong side of the text
        m_heading->setIcon(themedIcon(expanded ? QStringLiteral(":/ChevronDown") : QStringLiteral(":/ChevronLeft")));
    } else {
        m_heading->setArrowType(expanded ? Qt::DownArrow : Qt::RightArrow);
    }
    if (m_content) {
        m_content->setVisible(expanded);
    }
}
