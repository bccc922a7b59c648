#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// Frames the widget that has the keyboard, in every window of the program, from the moment when a key took it there
/// until the mouse is used. The frame has two colours of the palette, of which one is seen on every ground.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    explicit FocusRing(QObject *parent);
    ~FocusRing() override;

    /// The frame; null when none is shown.
    [[nodiscard]] const QWidget *frame() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QWidget *widget);
    void leave();
    void place();

    QPointer<QWidget> m_widget;
    QPointer<QWidget> m_frame;
    bool m_byKeys = false;
    bool m_placing = false; ///< soon
};
