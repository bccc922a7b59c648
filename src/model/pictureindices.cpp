#include "model/pictureindices.h"

#include "model/storedindices.h"

#include <cstring>
#include <numeric>

namespace {

constexpr qsizetype TableSize = 256;

/// Lists the snapped colours of a picture in order of first appearance, each once.
class ColourList
{
public:
    void add(QRgb colour)
    {
        bool &known = m_known[SnapGrid::indexOf(colour)];
        if (!known)
            m_colours.append(SnapGrid::snapped(colour));
        known = true;
    }
    [[nodiscard]] QList<QRgb> colours() const { return m_colours; }

private:
    SnapGrid::Table<bool> m_known{};
    QList<QRgb> m_colours;
};

QList<QRgb> coloursOfIndexed(const QImage &picture, const QList<QRgb> &shown)
{
    ColourList list;
    std::array<bool, TableSize> met{};
    for (int y = 0; y < picture.height(); ++y) {
        const uchar *line = picture.constScanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            if (met[line[x]])
                continue;
            met[line[x]] = true;
            list.add(shown.at(line[x]));
        }
    }
    return list.colours();
}

QList<QRgb> coloursOf(const QImage &picture)
{
    ColourList list;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            list.add(line[x]);
    }
    return list.colours();
}

} // namespace

PictureIndices::PictureIndices(const QImage &picture) : m_picture(StoredIndices::of(picture))
{
    QList<QRgb> colours;
    if (!m_picture.isNull()) {
        const QList<QRgb> shown = StoredIndices::shownColours(m_picture, QImage::Format_RGB32);
        colours = coloursOfIndexed(m_picture, shown);
        m_indexOfColour = SnapGrid::indicesOf(colours);
        for (size_t i = 0; i < m_indexOf.size(); ++i)
            m_indexOf[i] = m_indexOfColour[SnapGrid::indexOf(shown.at(qsizetype(i)))];
    } else {
        const bool readable = picture.format() == QImage::Format_RGB32 || picture.format() == QImage::Format_ARGB32;
        m_picture = readable ? picture : picture.convertToFormat(QImage::Format_RGB32, Qt::AvoidDither);
        colours = coloursOf(m_picture);
        m_indexOfColour = SnapGrid::indicesOf(colours);
    }
    m_hasMoreColours = colours.size() > TableSize;
    m_colourTable = colours;
    m_colourTable.resize(TableSize);
}

PictureIndices PictureIndices::ofIndexed(const QImage &picture)
{
    Q_ASSERT(picture.isNull() || picture.format() == QImage::Format_Indexed8);
    PictureIndices result;
    result.m_picture = picture;
    result.m_colourTable = picture.colorTable();
    std::iota(result.m_indexOf.begin(), result.m_indexOf.end(), uchar(0));
    return result;
}

bool PictureIndices::read(int x, int y, int side, uchar *indices) const
{
    const int width = std::clamp(m_picture.width() - x, 0, side);
    const int height = width > 0 ? std::clamp(m_picture.height() - y, 0, side) : 0;
    if (width < side || height < side)
        std::memset(indices, 0, size_t(side) * size_t(side));
    bool exact = true;
    for (int row = 0; row < height; ++row, indices += side) {
        const uchar *line = m_picture.constScanLine(y + row);
        if (m_picture.depth() == 8) {
            for (int i = 0; i < width; ++i)
                indices[i] = m_indexOf[line[x + i]];
            continue;
        }
        const QRgb *colours = reinterpret_cast<const QRgb *>(line) + x;
        for (int i = 0; i < width; ++i) {
            indices[i] = m_indexOfColour[SnapGrid::indexOf(colours[i])];
            exact = exact && (!m_hasMoreColours || m_colourTable.at(indices[i]) == SnapGrid::snapped(colours[i]));
        }
    }
    return exact;
}
