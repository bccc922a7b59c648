#pragma once

#include <QRubberBand>

/// A rubber band that looks the same in every style: an outline that is seen on every ground, with nothing over
/// what it encloses.
class OutlineBand : public QRubberBand
{
public:
    explicit OutlineBand(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
};
