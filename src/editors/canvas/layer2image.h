#pragma once

#include "model/palette.h"

#include <QImage>
#include <QObject>
#include <QPointer>

/// The pixels that a paint canvas edits, and the primitives that draw into them.
///
/// The image is 8-bit indexed; every primitive sets palette indices and leaves alone what lies
/// outside the image, so callers need not clip. Corners and end points are inclusive.
class Layer2Image : public QObject
{
    Q_OBJECT

public:
    explicit Layer2Image(QSize size, QObject *parent = nullptr);

    const QImage &image() const { return m_image; }
    /// Takes an image; one that is not 8-bit indexed is converted.
    void setImage(const QImage &image);
    QRect rect() const { return m_image.rect(); }

    /// Makes the palette's colours those of the image and of every image that follows.
    void setPalette(const QPointer<Palette> &palette);
    /// Takes the colours of the bound palette again, after they changed.
    void reloadColourTable();

    /// Index drawn by the left button.
    int ink() const { return m_ink; }
    /// Index drawn by the right button.
    int paper() const { return m_paper; }
    /// Values outside the colour table are ignored.
    void setInk(int index);
    void setPaper(int index);

    /// Compares indices; QImage's own comparison takes two indices of one colour for equal.
    static bool haveSameIndices(const QImage &a, const QImage &b);

    /// Makes this a copy of other that shares its pixels until one of the two is drawn into.
    void copyFrom(const Layer2Image &other);

    void setPixel(QPoint pixel, int index);
    /// The index at pixel, which must lie inside the image.
    int pixelIndex(QPoint pixel) const;

    /// A straight line in ink.
    void drawLine(QPoint from, QPoint to);
    /// The outline of a rectangle in ink.
    void drawRectangle(QRect rect);
    void fillRectangle(QRect rect, int index);
    /// The outline of the ellipse inscribed in a normalised rectangle, in ink.
    void drawEllipse(QRect rect);
    /// Gives index to the four-connected region of equal pixels around pixel.
    void floodFill(QPoint pixel, int index);

    /// Gives index to the pixels of an area that have another one, or as much of it as mask says.
    void replaceIndex(const QRect &area, int replaced, int index, int mask = 0xFF);

    /// Sets every pixel of source, placed with its top-left at position, index 0 included.
    void paste(const QImage &source, QPoint position);

    /// The shifts move every pixel by one; the row or column that leaves comes back on the other side.
    void shiftUp();
    void shiftDown();
    void shiftLeft();
    void shiftRight();
    /// Turns clockwise by degrees (90, 180, 270); what a picture that is not square turns out of
    /// itself is lost.
    void rotate(int degrees);
    /// Turns the image upside down.
    void flip();
    /// Swaps left and right.
    void mirror();

    /// Moves every index, ink and paper into the group of 16 that starts at base.
    void moveToGroup(int base);

private:
    QImage m_image;
    QPointer<Palette> m_palette;
    int m_ink = 1;
    int m_paper = 0;
};
