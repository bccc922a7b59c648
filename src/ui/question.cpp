#include "ui/question.h"

#include "ui/plaintext.h"
#include "ui/titlewidth.h"

#include <QMessageBox>
#include <QPointer>

bool askYesOrNo(QWidget *parent, const QString &title, const QString &text, const QString &details)
{
    // not on the stack: it goes with its parent
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box->setDefaultButton(QMessageBox::No);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(plainText(details)); // whose format is always guessed
    widenForTitle(*box);
    const bool confirmed = box->exec() == QMessageBox::Yes;
    if (box)
        box->deleteLater();
    return confirmed;
}
