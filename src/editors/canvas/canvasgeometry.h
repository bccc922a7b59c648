#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// Where the pixels of an image lie in the widget that shows it enlarged.
struct CanvasGeometry
{
    static constexpr int MinimumZoom = 1;
    static constexpr int MaximumZoom = 64;
    static constexpr int ZoomStep = 2;

    /// Screen pixels of an image pixel across.
    int zoom = 16;
    /// Doubles the height of a pixel, for tiles of the 640-pixel tile map.
    bool tallPixels = false;
    /// The image pixel at the top-left of imageRect.
    QPoint scroll;
    /// Where the image is drawn, in widget coordinates.
    QRect imageRect;

    QSize cell() const { return {zoom, tallPixels ? zoom * 2 : zoom}; }

    /// Size of the whole image on the screen.
    QSize scaled(QSize image) const { return {image.width() * zoom, image.height() * cell().height()}; }

    /// The image pixel under a widget point; the divisions truncate toward zero.
    QPoint pixelAt(QPoint point) const
    {
        return scroll
            + QPoint((point.x() - imageRect.x()) / cell().width(), (point.y() - imageRect.y()) / cell().height());
    }

    /// The top-left corner of an image pixel in the widget.
    QPoint pointOf(QPoint pixel) const
    {
        return imageRect.topLeft()
            + QPoint((pixel.x() - scroll.x()) * cell().width(), (pixel.y() - scroll.y()) * cell().height());
    }

    /// The rectangle in the widget that image pixels cover.
    QRect rectOf(const QRect &pixels) const { return {pointOf(pixels.topLeft()), scaled(pixels.size())}; }

    /// The rectangle in the widget between two points of it, each snapped to the top-left corner of its pixel, both
    /// corners included; it does not leave imageRect.
    QRect bandBetween(QPoint from, QPoint to) const;

    /// The pixels that a rectangle in the widget covers to their right and bottom edges.
    QRect pixelsUnder(const QRect &band) const
    {
        return {pixelAt(band.topLeft()), QSize(band.width() / cell().width(), band.height() / cell().height())};
    }

    /// The part of the image, in pixels, that imageRect shows.
    QRect visiblePixels() const
    {
        return {scroll, QSize(imageRect.width() / cell().width(), imageRect.height() / cell().height())};
    }

    /// Fits the image into a widget: a side that fits is centred and shows all of the image,
    /// one that does not takes as many whole pixels as the widget holds.
    void layout(QSize widget, QSize image);

    /// The largest scroll values: what of the image the widget cannot show. Below 1 when all fits.
    QSize overflow(QSize widget, QSize image) const
    {
        return {image.width() - widget.width() / cell().width(), image.height() - widget.height() / cell().height()};
    }

    /// The scroll position moved by -delta, kept inside the image.
    QPoint scrolled(QPoint delta, QSize image) const;
};
