#pragma once

#include <QList>
#include <QPoint>

#include <optional>

struct PaintOptions;

/// The pixels that a freehand stroke goes over, from its press on.
class StrokePath
{
public:
    /// Starts a stroke at a pixel, or joined to the end of the last one.
    void begin(QPoint pixel, bool joined);
    /// Goes on to a pixel as the options ask for. False when that took pixels out of the stroke again, of those that
    /// were in it before.
    bool goOn(QPoint pixel, const PaintOptions &options);
    /// Forgets where the last stroke ended: it was on another picture.
    void forgetEnd() { m_end.reset(); }

    [[nodiscard]] const QList<QPoint> &pixels() const { return m_pixels; }
    /// How many of them were there before the last call.
    [[nodiscard]] qsizetype painted() const { return m_painted; }

private:
    void lineTo(QPoint pixel);
    /// True when all that were painted stay.
    bool cutCorners();

    QList<QPoint> m_pixels;
    qsizetype m_painted = 0;
    std::optional<QPoint> m_end; ///< of the stroke, or of the last one
};
