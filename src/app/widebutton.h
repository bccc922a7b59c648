#pragma once

#include <QIcon>
#include <QString>

class QToolButton;

/// A flat button as wide as there is room, with its icon before its text: an entry of a list of ways to go on.
[[nodiscard]] QToolButton *wideButton(const QString &text, const QIcon &icon);

/// Gives another button that look.
void makeWide(QToolButton *button);
