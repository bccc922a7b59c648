#pragma once

#include <QImage>

/// An edit from its begin to its end, as the image before it.
class PendingEdit
{
public:
    bool isOpen() const { return !m_before.isNull(); }
    void begin(const QImage &image) { m_before = image; }
    /// Forgets the edit: what it changed belongs to another image.
    void giveUp() { m_before = QImage(); }
    /// Ends the edit. The image before it, or null when it has changed no pixel or none was open.
    [[nodiscard]] QImage end(const QImage &after);

private:
    QImage m_before;
};
