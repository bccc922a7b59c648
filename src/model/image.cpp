#include "model/image.h"

#include "model/nximage.h"
#include "model/palette.h"

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
    m_image = NxImage::indexed(image, m_palette);
    applyColourTable();
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
