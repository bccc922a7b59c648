#pragma once

#include <QElapsedTimer>
#include <QObject>

/// Sees when the person in front of the program lets the hands rest, by watching all that they do.
class PauseWatch : public QObject
{
    Q_OBJECT

public:
    /// Hands that did nothing for as long rest, in milliseconds.
    static constexpr int Rest = 300;

    explicit PauseWatch(QObject *parent = nullptr);

    /// Whether no button is held, and so no stroke or drag goes on.
    [[nodiscard]] static bool isFree();
    /// The same, and no key or wheel was used just now.
    [[nodiscard]] bool isPaused() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QElapsedTimer m_sinceAction;
};
