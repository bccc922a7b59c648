#include "ui/messagedialog.h"

#include "ui/titlewidth.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int MostWaiting = 20; // a flood of failures must not hold the user for ever

/// A text whose words, such as paths, can be broken where they are too long for a line.
QString breakable(const QString &text)
{
    constexpr int longest = 60;
    constexpr QChar zeroWidthSpace(0x200B);
    QString broken;
    int wordLength = 0;
    for (const QChar letter : text) {
        wordLength = letter.isSpace() ? 0 : wordLength + 1;
        if (wordLength > longest && !letter.isLowSurrogate()) {
            broken += zeroWidthSpace;
            wordLength = 1;
        }
        broken += letter;
    }
    return broken;
}

} // namespace

MessageDialog::MessageDialog(QWidget *parent)
    : QDialog(parent)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(this))
    , m_detail(new QLabel(this))
{
    setWindowTitle(defaultTitle());
    setModal(true);

    m_text->setObjectName(QStringLiteral("text"));
    for (QLabel *label : {m_text, m_detail}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText); // messages quote file names
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    }
    m_icon->setAlignment(Qt::AlignTop);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &MessageDialog::accept);

    m_accept = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
    connect(m_accept, &QPushButton::clicked, this, [this] {
        const Offer offer = m_shown.offer; // the next message may take its place
        accept();
        offer.accept();
    });

    auto *row = new QHBoxLayout;
    row->setSpacing(row->spacing() * 2);
    row->addWidget(m_icon);
    auto *texts = new QVBoxLayout;
    texts->addWidget(m_text);
    texts->addWidget(m_detail);
    row->addLayout(texts, 1);
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
    return m_shown.text;
}

QString MessageDialog::detail() const
{
    return m_shown.detail;
}

bool MessageDialog::Message::saysTheSameAs(const Message &other) const
{
    return text == other.text && title == other.title && detail == other.detail;
}

void MessageDialog::showMessage(const QString &text, const QString &title, const QString &detail, const Offer &offer)
{
    const Message message{text, title, detail, offer};
    const auto same = [&message](const Message &other) { return message.saysTheSameAs(other); };
    if (!isVisible()) {
        display(message);
    } else if (!same(m_shown) && std::none_of(m_waiting.cbegin(), m_waiting.cend(), same)
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
    m_shown = message;
    m_text->setText(breakable(message.text));
    m_detail->setText(breakable(message.detail));
    m_detail->setVisible(!message.detail.isEmpty());
    m_accept->setText(message.offer.text);
    m_accept->setVisible(!message.offer.text.isEmpty());
    const int extent = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    m_icon->setPixmap(style()
                          ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                          .pixmap({extent, extent}, devicePixelRatioF()));
    open();
}
