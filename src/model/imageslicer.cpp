#include "model/imageslicer.h"

#include "model/nximage.h"

#include <algorithm>

namespace {

constexpr QRgb Black = 0xff000000;

QSize cellsOf(const QImage &picture, int side)
{
    return side > 0 ? QSize(picture.width() / side, picture.height() / side) : QSize(0, 0);
}

/// A square picture whose pixels are the values of these pixels in a map.
template <typename Map>
QImage mapped(const uchar *pixels, int side, const Map &map, const QList<QRgb> &colourTable)
{
    QImage picture(side, side, QImage::Format_Indexed8);
    picture.setColorTable(colourTable);
    for (int y = 0; y < side; ++y) {
        uchar *line = picture.scanLine(y);
        for (int x = 0; x < side; ++x)
            line[x] = uchar(map(pixels[y * side + x]));
    }
    return picture;
}

} // namespace

bool ImageSlicer::Bank::takes(const TileColours &colours) const
{
    const auto missing = std::count_if(colours.cbegin(), colours.cend(), [this](uchar c) { return slotOf(c) < 0; });
    return missing <= BankSize - m_used;
}

void ImageSlicer::Bank::add(const TileColours &colours)
{
    for (const uchar colour : colours) {
        if (slotOf(colour) >= 0)
            continue;
        m_slotOf[colour] = qint8(m_used);
        m_colours[size_t(m_used)] = colour;
        ++m_used;
    }
}

ImageSlicer::ImageSlicer(const QImage &source, QObject *parent)
    : QObject(parent)
    , m_source(NxImage::accepts(source.size()) ? source : QImage())
    , m_cells(cellsOf(m_source, TileSide))
{ }

int ImageSlicer::sliceTiles()
{
    slice(PictureIndices(m_source), TileSide, cellsOf(m_source, TileSide));
    assignBanks();
    return m_pieces.count();
}

int ImageSlicer::sliceSprites(int size)
{
    sliceSpritesOf(PictureIndices(m_source), size);
    return m_pieces.count();
}

int ImageSlicer::sliceIndexedSprites()
{
    sliceSpritesOf(PictureIndices::ofIndexed(m_source), SpriteSide);
    return m_pieces.count();
}

void ImageSlicer::sliceSpritesOf(const PictureIndices &picture, int size)
{
    slice(picture, SpriteSide, cellsOf(m_source, size));
    for (quint32 &placement : m_placements)
        placement = placement >> OrientationBits << OrientationBits;
}

void ImageSlicer::slice(const PictureIndices &picture, int side, const QSize &cells)
{
    m_picture = picture;
    m_cells = picture.isNull() ? QSize(0, 0) : cells;
    m_pieces = PieceTable(side, cellCount(), [this](int cell, uchar *pixels) { readCell(cell, pixels); });
    m_placements.clear();
    m_placements.reserve(size_t(cellCount()));
    m_reduced.clear();
    m_banks.fill(Bank());
    m_assignments.clear();

    PieceTable::Pixels pixels;
    for (int cell = 0; cell < cellCount(); ++cell) {
        const bool exact = readCell(cell, pixels.data());
        const auto [piece, orientation] = m_pieces.add(pixels.data(), cell);
        m_placements.push_back(quint32(piece << OrientationBits | orientation));
        if (!exact) {
            m_reduced.resize(size_t(m_pieces.count()));
            m_reduced[size_t(piece)] = true;
        }
        emit processed(cell);
    }
    m_pieces.close();
}

bool ImageSlicer::readCell(int cell, uchar *pixels) const
{
    const int side = m_pieces.side();
    return m_picture.read(cell % m_cells.width() * side, cell / m_cells.width() * side, side, pixels);
}

int ImageSlicer::lossyTileCount() const
{
    const auto withBank = m_assignments.size();
    const auto known = qMin(withBank, qsizetype(m_reduced.size()));
    const auto reduced = std::count(m_reduced.cbegin(), m_reduced.cbegin() + known, true);
    return int(m_pieces.count() - withBank + reduced);
}

/// Gives each tile the first bank that has its colours or room for them.
void ImageSlicer::assignBanks()
{
    m_assignments.reserve(m_pieces.count());
    for (int i = 0; i < m_pieces.count(); ++i) {
        const TileColours colours = coloursOf(i);
        const auto bank = std::find_if(m_banks.begin(), m_banks.end(), [&](const Bank &b) { return b.takes(colours); });
        if (bank == m_banks.end()) {
            qWarning("Palette full!");
            return;
        }
        bank->add(colours);
        m_assignments.append({quint8(bank - m_banks.begin()), quint8(bank->used())});
    }
}

ImageSlicer::TileColours ImageSlicer::coloursOf(int index) const
{
    TileColours colours;
    std::array<bool, 256> seen{};
    PieceTable::Pixels buffer;
    const uchar *pixels = m_pieces.pixels(index, buffer);
    for (int i = 0; i < TileSide * TileSide; ++i) {
        if (!std::exchange(seen[pixels[i]], true))
            colours.append(pixels[i]);
    }
    return colours;
}

QList<ImageSlicer::Placement> ImageSlicer::placements() const
{
    QList<Placement> placements(qsizetype(m_placements.size()));
    std::transform(m_placements.cbegin(), m_placements.cend(), placements.begin(), unpacked);
    return placements;
}

QImage ImageSlicer::piece(int index) const
{
    if (index < 0 || index >= m_pieces.count())
        return {};
    return m_pieces.side() == TileSide ? tile(index) : sprite(index);
}

QImage ImageSlicer::sprite(int index) const
{
    PieceTable::Pixels buffer;
    return mapped(
        m_pieces.pixels(index, buffer), SpriteSide, [](uchar colour) { return colour; }, colours());
}

QImage ImageSlicer::tile(int index) const
{
    PieceTable::Pixels buffer;
    const uchar *pixels = m_pieces.pixels(index, buffer);
    if (index >= m_assignments.size()) {
        const TileColours colours = coloursOf(index);
        QList<QRgb> table;
        for (const uchar colour : colours)
            table.append(m_picture.colourTable().at(colour));
        return mapped(
            pixels, TileSide, [&](uchar colour) { return colours.indexOf(colour); }, table);
    }

    const Assignment assignment = m_assignments.at(index);
    const Bank &bank = m_banks[assignment.bank];
    QList<QRgb> table;
    if (m_assignments.size() == m_pieces.count()) {
        table = bankColours();
    } else {
        table = slotColours(bank, assignment.used);
        table.resize(256);
    }
    return mapped(
        pixels, TileSide, [&](uchar colour) { return bank.slotOf(colour); }, table);
}

int ImageSlicer::bank(int index) const
{
    return index >= 0 && index < m_assignments.size() ? m_assignments.at(index).bank : 0;
}

QImage ImageSlicer::pieceWithOffset(int index) const
{
    QImage picture = piece(index);
    const int offset = bank(index) * BankSize;
    for (int y = 0; y < picture.height(); ++y) {
        uchar *line = picture.scanLine(y);
        for (int x = 0; x < picture.width(); ++x)
            line[x] = uchar((line[x] & (BankSize - 1)) + offset);
    }
    return picture;
}

QList<QRgb> ImageSlicer::bankColours() const
{
    QList<QRgb> colours;
    colours.reserve(BankCount * BankSize);
    for (const Bank &bank : m_banks)
        colours.append(slotColours(bank, bank.used()));
    return colours;
}

/// The colours of a bank's first used slots, the others black.
QList<QRgb> ImageSlicer::slotColours(const Bank &bank, int used) const
{
    QList<QRgb> ofBank(BankSize, Black);
    for (int slot = 0; slot < used; ++slot)
        ofBank[slot] = colours().at(bank.colourAt(slot));
    return ofBank;
}
