#pragma once

#include <QIcon>
#include <QIconEngine>

/// Draws an SVG picture in the colour of the text around it.
///
/// Everything that the picture paints in "currentColor" takes the button text colour of the
/// application palette: dimmed when disabled, the colour of highlighted text when selected. It
/// therefore reads on light and dark themes and follows a change of theme at once. Pictures are
/// rendered at the size in device pixels, never scaled, and kept in the pixmap cache.
class SvgIconEngine final : public QIconEngine
{
public:
    /// resource names the SVG file, such as ":/Draw". What cannot be read draws nothing.
    explicit SvgIconEngine(const QString &resource);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    bool isNull() override { return m_svg.isEmpty(); }
    QString key() const override { return QStringLiteral("quenmora-svg"); }
    QIconEngine *clone() const override { return new SvgIconEngine(*this); }

private:
    /// The picture centred in deviceSize pixels; a null pixmap when there is nothing to draw.
    [[nodiscard]] QPixmap rendered(const QSize &deviceSize, QIcon::Mode mode) const;

    QString m_resource;
    QByteArray m_svg;
};

/// The icon of a resource such as ":/Draw", drawn by an SvgIconEngine.
[[nodiscard]] QIcon themedIcon(const QString &resource);
