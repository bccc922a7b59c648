#include "ui/dialogbase.h"

#include "ui/svgiconengine.h"
#include "ui/titlewidth.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QStyle>

DialogBase::DialogBase(const QString &title, QWidget *parent)
    : QDialog(parent)
    , m_header(new QLabel(this))
    , m_body(new QVBoxLayout)
    , m_form(new QFormLayout)
    , m_errorIcon(new QLabel(this))
    , m_error(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(title);
    setModal(true);
    setMinimumWidth(titleWidth(title)); // which is also room for a name

    QFont bold = m_header->font();
    bold.setBold(true);
    m_header->setFont(bold);
    m_header->setTextFormat(Qt::PlainText);
    m_header->hide();

    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_body->addLayout(m_form);

    m_error->setObjectName(QStringLiteral("error"));
    m_error->setWordWrap(true);
    m_error->setTextFormat(Qt::PlainText);
    m_errorIcon->setAlignment(Qt::AlignTop);
    m_errorIcon->hide();
    auto *errorLine = new QHBoxLayout;
    errorLine->addWidget(m_errorIcon);
    errorLine->addWidget(m_error, 1);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_header);
    layout->addLayout(m_body, 1);
    layout->addLayout(errorLine);
    layout->addWidget(m_buttons);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &DialogBase::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &DialogBase::reject);
}

void DialogBase::setHeader(const QString &header)
{
    m_header->setText(header);
    m_header->setVisible(!header.isEmpty());
}

QString DialogBase::error() const
{
    return m_error->text();
}

QPushButton *DialogBase::okButton() const
{
    return m_buttons->button(QDialogButtonBox::Ok);
}

void DialogBase::accept()
{
    const QString found = problem();
    setError(found);
    if (found.isEmpty()) {
        QDialog::accept();
        submit();
    }
}

void DialogBase::setError(const QString &error)
{
    if (error == m_error->text()) {
        return;
    }
    m_error->setText(error);
    m_error->setAccessibleName(error);
    m_errorIcon->setVisible(!error.isEmpty());
    if (!error.isEmpty()) {
        const int extent = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
        m_errorIcon->setPixmap(themedIcon(QStringLiteral(":/Error")).pixmap({extent, extent}, devicePixelRatioF()));
        QAccessibleEvent alert(m_error, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void DialogBase::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        setError({});
        // the buttons were made before the fields of the subclass and would come first
        for (QWidget *next = nextInFocusChain(); next && next != this; next = next->nextInFocusChain()) {
            if ((next->focusPolicy() & Qt::TabFocus) && next->isVisibleTo(this) && next->isEnabled()
                && !m_buttons->isAncestorOf(next)) {
                next->setFocus(Qt::TabFocusReason); // selects the text of a line edit
                break;
            }
        }
    }
    QDialog::showEvent(event);
}

void DialogBase::revalidate()
{
    if (!error().isEmpty()) {
        setError(problem());
    }
}
