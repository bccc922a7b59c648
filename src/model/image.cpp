#include "model/image.h"

#include "model/nximage.h"
#include "model/palette.h"

namespace {

/// Any picture as 8-bit indices.
QImage indexed(const QImage &picture, const QPointer<Palette> &palette)
{
    if (picture.isNull() || picture.format() == QImage::Format_Indexed8)
        return picture;
    if (picture.depth() == 1) // indexed already, only packed
        return picture.convertToFormat(QImage::Format_Indexed8);
    if (picture.format() == QImage::Format_Grayscale8) { // what PNG makes of indices without a colour table
        QImage indices = picture;
        return indices.reinterpretAsFormat(QImage::Format_Indexed8) ? indices : QImage();
    }
    NxImage snapped;
    snapped.setImage(picture);
    return palette ? snapped.remap(palette) : snapped.toIndexed();
}

} // namespace

QSize Image::sizeOf(Quenmora::ImageMode mode)
{
    switch (mode) {
    case Quenmora::Layer2_256x192:
        return {256, 192};
    case Quenmora::Layer2_320x256:
        return {320, 256};
    case Quenmora::Layer2_640x256:
        return {640, 256};
    case Quenmora::LoRes_128x96:
        return {128, 96};
    }
    return {};
}

Image::Image(Quenmora::ImageMode mode, QObject *parent)
    : QObject(parent)
    , m_mode(mode)
    , m_image(sizeOf(mode), QImage::Format_Indexed8)
{
    m_image.fill(0);
}

Image::~Image() = default;

void Image::setImage(const QImage &image)
{
    m_image = indexed(image, m_palette);
    applyColourTable();
    emit imageChanged();
}

QPointer<Palette> Image::palette() const
{
    return m_palette;
}

void Image::setPalette(const QPointer<Palette> &palette)
{
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    if (m_palette)
        connect(m_palette, &Palette::colourChanged, this, [this] { applyColourTable(); });
    applyColourTable();
}

QUuid Image::paletteId() const
{
    return m_palette ? m_palette->id() : QUuid();
}

void Image::applyColourTable()
{
    if (!m_palette || m_image.isNull())
        return;
    // a picture that is shared with others is copied only when a colour differs
    if (const QList<QRgb> colours = m_palette->colourTable(); m_image.colorTable() != colours)
        m_image.setColorTable(colours);
}
