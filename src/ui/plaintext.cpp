#include "ui/plaintext.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>

QString plainText(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    // behind it a letter opens no tag and no entity, and nobody sees it
    constexpr QChar wordJoiner(0x2060);
    QString plain;
    plain.reserve(text.size() + 8);
    for (const QChar letter : text) {
        plain += letter;
        if (letter == u'<' || letter == u'&')
            plain += wordJoiner;
    }
    return plain;
}

void PlainToolTips::enforce()
{
    if (!qApp->findChild<PlainToolTips *>({}, Qt::FindDirectChildrenOnly))
        qApp->installEventFilter(new PlainToolTips(qApp));
}

bool PlainToolTips::eventFilter(QObject *watched, QEvent *event)
{
    // a tool tip is a label that is polished before it gets its text
    if (event->type() == QEvent::Polish && watched->inherits("QTipLabel"))
        static_cast<QLabel *>(watched)->setTextFormat(Qt::PlainText);
    return QObject::eventFilter(watched, event);
}
