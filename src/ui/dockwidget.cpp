#include "ui/dockwidget.h"

#include "ui/plaintext.h"

#include <QEvent>
#include <QLabel>
#include <QStackedWidget>

DockWidget::DockWidget(const QString &title, const QString &placeholder, QWidget *parent)
    : QDockWidget(title, parent)
    , m_pages(new QStackedWidget(this))
    , m_placeholder(new QLabel(placeholder, m_pages))
{
    m_placeholder->setAlignment(Qt::AlignCenter);
    m_placeholder->setWordWrap(true);
    m_placeholder->setForegroundRole(QPalette::PlaceholderText);
    m_placeholder->setMargin(8);
    // the text wraps; neither it nor its page keeps the dock from being made small
    m_placeholder->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_placeholder->setMinimumHeight(4 * m_placeholder->fontMetrics().lineSpacing());
    m_pages->addWidget(m_placeholder);
    setWidget(m_pages);
}

bool DockWidget::event(QEvent *event)
{
    const bool handled = QDockWidget::event(event);
    if (event->type() == QEvent::WindowTitleChange) // the title may be an asset's name
        toggleViewAction()->setText(withoutMnemonic(windowTitle()));
    return handled;
}

void DockWidget::setContent(QWidget *content)
{
    if (content == m_content) {
        return;
    }
    const bool wasActive = isActive();
    delete m_content;
    m_content = content;
    if (m_content) {
        m_pages->addWidget(m_content);
        if (wasActive) {
            m_pages->setCurrentWidget(m_content);
        }
    }
}

void DockWidget::setPlaceholderText(const QString &text)
{
    m_placeholder->setText(text);
}

QString DockWidget::placeholderText() const
{
    return m_placeholder->text();
}

bool DockWidget::isActive() const
{
    return m_content && m_pages->currentWidget() == m_content;
}

void DockWidget::setActive(bool active)
{
    if (active == isActive() || !m_content) {
        return;
    }
    m_pages->setCurrentWidget(active ? m_content : m_placeholder);
    emit activeChanged(active);
}
