#include "app/widebutton.h"

#include <QToolButton>

QToolButton *wideButton(const QString &text, const QIcon &icon)
{
    auto *button = new QToolButton;
    button->setText(text);
    button->setIcon(icon);
    makeWide(button);
    return button;
}

void makeWide(QToolButton *button)
{
    button->setIconSize({18, 18});
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}
