#pragma once

#include <QString>

class QWidget;

/// Asks a person a question over a window and waits for the answer; true for yes. No is proposed, for what cannot
/// be taken back. The texts are plain, whatever names they quote.
[[nodiscard]] bool askYesOrNo(QWidget *parent, const QString &title, const QString &text, const QString &details = {});
