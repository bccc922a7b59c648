#include "undo/paletteorder.h"

#include "model/palette.h"

#include <numeric>

PaletteOrder::PaletteOrder()
{
    std::iota(m_places.begin(), m_places.end(), uchar(0));
}

PaletteOrder::PaletteOrder(const QList<int> &places, const QList<int> &sources) : PaletteOrder()
{
    for (qsizetype i = 0; i < places.size(); ++i)
        m_places[size_t(sources.at(i))] = uchar(places.at(i));
}

PaletteOrder PaletteOrder::inverse() const
{
    PaletteOrder order;
    for (int entry = 0; entry < Size; ++entry)
        order.m_places[m_places[size_t(entry)]] = uchar(entry);
    return order;
}

PaletteOrder PaletteOrder::then(const PaletteOrder &next) const
{
    PaletteOrder order;
    for (int entry = 0; entry < Size; ++entry)
        order.m_places[size_t(entry)] = next.m_places[m_places[size_t(entry)]];
    return order;
}

QImage PaletteOrder::in(const QImage &picture) const
{
    if (changesNothing() || picture.format() != QImage::Format_Indexed8)
        return picture;
    QImage moved = picture;
    for (int y = 0; y < moved.height(); ++y) {
        uchar *row = moved.scanLine(y);
        for (int x = 0; x < moved.width(); ++x)
            row[x] = m_places[row[x]];
    }
    return moved;
}

QImage PaletteOrder::inGroup(const QImage &picture, int group) const
{
    if (changesNothing() || picture.format() != QImage::Format_Indexed8)
        return picture;
    QImage moved = picture;
    for (int y = 0; y < moved.height(); ++y) {
        uchar *row = moved.scanLine(y);
        for (int x = 0; x < moved.width(); ++x)
            row[x] = inGroup(row[x], group);
    }
    return moved;
}

PaletteHistory &PaletteHistory::of(Palette &palette)
{
    auto *history = palette.findChild<PaletteHistory *>(QString(), Qt::FindDirectChildrenOnly);
    return history ? *history : *new PaletteHistory(&palette);
}

void PaletteHistory::add(const PaletteOrder &order)
{
    m_order = m_order.then(order);
    emit reordered(order);
}
