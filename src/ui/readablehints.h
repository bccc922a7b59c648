#pragma once

#include <QObject>
#include <QPalette>

class QWidget;

/// Sees to it that hint texts (Qt's PlaceholderText role: placeholders of docks, empty choosers, side remarks) can be
/// read in every theme.
///
/// A theme that sets no colour for them leaves them in a faint black, which is lost on a dark ground. They then take
/// the theme's text colour, faded. Made once for the main window, it follows when the theme changes.
class ReadableHints : public QObject
{
public:
    explicit ReadableHints(QWidget *window);

    /// The palette with a colour for hints that is seen on its grounds; the palette itself when it has one.
    [[nodiscard]] static QPalette readable(QPalette palette);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static void keepReadable();
};
