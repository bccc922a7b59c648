#include "ui/svgiconengine.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace {

QColor colourOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

/// The size in device pixels that QIcon means when it asks for a pixmap of this size at this device pixel
/// ratio. Newer versions of Qt leave the multiplication to the engine.
QSize deviceSizeOf(const QSize &size, qreal devicePixelRatio)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    return size * devicePixelRatio;
#else
    Q_UNUSED(devicePixelRatio);
    return size;
#endif
}

} // namespace

SvgIconEngine::SvgIconEngine(const QString &resource) : m_resource(resource)
{
    QFile file(resource);
    if (file.open(QIODevice::ReadOnly)) {
        m_svg = file.readAll();
    } else {
        qWarning("No icon %s", qUtf8Printable(resource));
    }
}

void SvgIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State)
{
    const QSizeF size = QSizeF(rect.size()) * painter->device()->devicePixelRatio();
    painter->drawPixmap(rect, rendered(size.toSize(), mode));
}

QPixmap SvgIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State)
{
    return rendered(size, mode);
}

QPixmap SvgIconEngine::scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State, qreal scale)
{
    QPixmap result = rendered(deviceSizeOf(size, scale), mode);
    result.setDevicePixelRatio(scale);
    return result;
}

QSize SvgIconEngine::actualSize(const QSize &size, QIcon::Mode, QIcon::State)
{
    return isNull() ? QSize() : size;
}

QPixmap SvgIconEngine::rendered(const QSize &deviceSize, QIcon::Mode mode) const
{
    if (m_svg.isEmpty() || deviceSize.isEmpty()) {
        return {};
    }
    const QString colour = colourOf(mode).name();
    const QString key =
        QStringLiteral("%1 %2 %3x%4").arg(m_resource, colour).arg(deviceSize.width()).arg(deviceSize.height());
    QPixmap result;
    if (!QPixmapCache::find(key, &result)) {
        QByteArray svg = m_svg;
        QSvgRenderer renderer(svg.replace("currentColor", colour.toLatin1()));
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        result = QPixmap(deviceSize);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        renderer.render(&painter);
        painter.end();
        QPixmapCache::insert(key, result);
    }
    return result;
}

QIcon themedIcon(const QString &resource)
{
    return QIcon(new SvgIconEngine(resource));
}
