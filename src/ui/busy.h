#pragma once

#include <QPointer>
#include <QString>

class QStatusBar;
class QWidget;

/// Says that the program is at work for as long as it lives: the pointer tells to wait, and the status bar of the
/// window names what is being done.
///
/// Both are on the screen at once, without an event loop in which the work could be disturbed. The status bar is left
/// to whatever is said when the work is done. Work on little data says nothing: it is over before that could be read,
/// and would only make the pointer and the status bar flicker.
class Busy
{
public:
    /// Bytes from which on work is worth a message. They take a few hundredths of a second, and on a slow machine more.
    static constexpr qint64 Much = qint64(1) << 20;

    /// The text names what is being done, such as "Saving Level…".
    Busy(QWidget *window, const QString &text, qint64 bytes = Much);
    ~Busy();
    Q_DISABLE_COPY_MOVE(Busy)

private:
    const bool m_told;
    const QString m_text;
    QPointer<QStatusBar> m_statusBar;
};
