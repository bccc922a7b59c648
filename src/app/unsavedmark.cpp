#include "app/unsavedmark.h"

#include <QPainter>

#include <utility>

namespace {

constexpr int Interval = 500; // milliseconds
constexpr int IconExtents[] = {16, 24, 32, 48, 64, 128};

/// The icon with a dot in its lower right corner.
QIcon dotted(const QIcon &icon)
{
    QIcon marked;
    for (const int extent : IconExtents) {
        QPixmap picture = icon.pixmap(QSize(extent, extent), 1.0);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal size = extent * 0.44;
        painter.setPen(QPen(Qt::white, extent / 16.0));
        painter.setBrush(QColor(221, 72, 20));
        const qreal place = extent - size - extent / 32.0;
        painter.drawEllipse(QRectF(place, place, size, size));
        painter.end();
        marked.addPixmap(picture);
    }
    return marked;
}

} // namespace

UnsavedMark::UnsavedMark(std::function<bool()> isModified, QWidget *window)
    : QLabel(window)
    , m_ask(std::move(isModified))
    , m_window(window)
    , m_plainIcon(window->windowIcon())
{
    setText(tr("● Unsaved"));
    setAccessibleName(tr("The project has unsaved changes"));
    setToolTip(tr("The project has changes that are not saved yet"));
    setContentsMargins(4, 0, 4, 0);
    hide();
    m_timer.setInterval(Interval);
    connect(&m_timer, &QTimer::timeout, this, &UnsavedMark::look);
    m_timer.start();
}

void UnsavedMark::look()
{
    const bool isModified = m_ask();
    if (isModified == m_isModified)
        return;
    m_isModified = isModified;
    setVisible(isModified);
    m_window->setWindowIcon(isModified ? dotted(m_plainIcon) : m_plainIcon);
}
