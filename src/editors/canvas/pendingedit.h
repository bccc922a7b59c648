#pragma once

#include <QImage>
#include <QString>

/// An edit from its begin to its end, as the image before it.
class PendingEdit
{
public:
    bool isOpen() const { return !m_before.isNull(); }
    /// text names the edit for undo, should something else end it.
    void begin(const QImage &image, const QString &text)
    {
        m_before = image;
        m_text = text;
    }
    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] const QImage &before() const { return m_before; }
    /// Forgets the edit: what it changed belongs to another image.
    void giveUp() { m_before = QImage(); }
    /// Ends the edit. The image before it, or null when it has changed no pixel or none was open.
    [[nodiscard]] QImage end(const QImage &after);

private:
    QImage m_before;
    QString m_text;
};
