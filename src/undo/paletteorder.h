#pragma once

#include <QImage>
#include <QList>
#include <QObject>

#include <array>

class Palette;

/// Where the entries of a palette go when they change places.
class PaletteOrder
{
public:
    static constexpr int Size = 256;

    /// All stay.
    PaletteOrder();
    /// The entries at places, which are different ones, come to stand there in another order: the first place gets the
    /// entry that stands first in sources, and so on.
    PaletteOrder(const QList<int> &places, const QList<int> &sources);

    /// The place to which an entry goes.
    [[nodiscard]] int operator()(int entry) const { return m_places[size_t(entry)]; }
    [[nodiscard]] PaletteOrder inverse() const;
    /// This, and then another one.
    [[nodiscard]] PaletteOrder then(const PaletteOrder &next) const;
    /// What became of the entries between two times, when these were the orders since the beginning.
    [[nodiscard]] static PaletteOrder since(const PaletteOrder &then, const PaletteOrder &now)
    {
        return then.inverse().then(now);
    }
    [[nodiscard]] bool changesNothing() const { return *this == PaletteOrder(); }

    /// The places of all entries, one byte each.
    [[nodiscard]] QByteArray asBytes() const { return {reinterpret_cast<const char *>(m_places.data()), Size}; }

    /// An indexed picture that looks as before when the palette has this order.
    [[nodiscard]] QImage in(const QImage &picture) const;
    /// The same for pixels of 4 bits that are shown with a group of 16 entries, within which all of them stay.
    [[nodiscard]] QImage inGroup(const QImage &picture, int group) const;
    [[nodiscard]] uchar inGroup(uchar pixel, int group) const
    {
        return uchar((pixel & 0xF0) | ((*this)((group * 16 + (pixel & 0x0F)) & 0xFF) & 0x0F));
    }

    bool operator==(const PaletteOrder &) const = default;

private:
    std::array<uchar, Size> m_places;
};

/// The order in which the entries of a palette are now, as seen from the time when somebody first asked.
///
/// Undo steps hold pixels and entries of the time when they were made; what became of the entries since leads to those
/// of now. It is a child of the palette.
class PaletteHistory final : public QObject
{
    Q_OBJECT

public:
    [[nodiscard]] static PaletteHistory &of(Palette &palette);

    [[nodiscard]] const PaletteOrder &order() const { return m_order; }
    void add(const PaletteOrder &order);

signals:
    /// The entries and all pictures of the palette's users are in another order now.
    void reordered(const PaletteOrder &order);

private:
    explicit PaletteHistory(QObject *palette) : QObject(palette) { }

    PaletteOrder m_order;
};
