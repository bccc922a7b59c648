#pragma once

#include <QWidget>

/// A frame around a place of a widget that is seen on every ground: black, white and black lines outside of what it
/// frames, as far as the widget has room for them.
class KeyMark : public QWidget
{
public:
    explicit KeyMark(QWidget *widget);

    void showAround(const QRect &place);

protected:
    void paintEvent(QPaintEvent *event) override;
};
