#include "ui/messagedialog.h"

#include "ui/titlewidth.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr int MostWaiting = 20; // a flood of failures must not hold the user for ever

}

MessageDialog::MessageDialog(QWidget *parent) : QDialog(parent), m_icon(new QLabel(this)), m_text(new QLabel(this))
{
    setWindowTitle(defaultTitle());
    setModal(true);

    m_text->setObjectName(QStringLiteral("text"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText); // messages quote file names
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_icon->setAlignment(Qt::AlignTop);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &MessageDialog::accept);

    auto *row = new QHBoxLayout;
    row->setSpacing(row->spacing() * 2);
    row->addWidget(m_icon);
    row->addWidget(m_text, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(row);
    layout->addWidget(buttons);
}

QString MessageDialog::defaultTitle()
{
    return tr("Warning!");
}

QString MessageDialog::text() const
{
    return m_text->text();
}

void MessageDialog::showMessage(const QString &text, const QString &title)
{
    const Message message{text, title};
    if (!isVisible()) {
        display(message);
    } else if (message != Message{m_text->text(), windowTitle()} && !m_waiting.contains(message)
               && m_waiting.size() < MostWaiting) {
        m_waiting.enqueue(message);
    }
}

void MessageDialog::done(int result)
{
    QDialog::done(result);
    if (!m_waiting.isEmpty()) {
        display(m_waiting.dequeue());
    }
}

void MessageDialog::display(const Message &message)
{
    setWindowTitle(message.title);
    m_text->setMinimumWidth(titleWidth(message.title));
    m_text->setText(message.text);
    const int extent = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    m_icon->setPixmap(style()
                          ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                          .pixmap({extent, extent}, devicePixelRatioF()));
    open();
}
