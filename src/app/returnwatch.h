#pragma once

#include <QObject>
#include <QTimer>

class QWindow;

/// Tells when the person comes back to one of the program's windows, be it from another program or from a dialog.
///
/// It waits for a moment in which a question disturbs nothing: coming back often takes a click, which may begin a
/// stroke or open a menu. While a dialog is open it says nothing; closing that is a return.
class ReturnWatch : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds in which the click arrives that brought the window to the front.
    static constexpr int Pause = 100;

    explicit ReturnWatch(QObject *parent = nullptr);

signals:
    void returned();

private:
    void onFocusWindowChanged(const QWindow *window);
    void announce();

    QTimer m_pause;
};
