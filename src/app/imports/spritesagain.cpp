#include "app/imports/spritesagain.h"

#include "app/imports/importchoice.h"
#include "app/imports/paletteimport.h"
#include "app/imports/slicingprogress.h"
#include "app/imports/spriteimport.h"
#include "importing/paletteedit.h"
#include "model/image.h"
#include "model/imageslicer.h"
#include "model/palette.h"
#include "model/picturefile.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "pictures/ninebitcolour.h"
#include "undo/undomacro.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <array>
#include <bitset>

namespace {

constexpr int Side = SpriteBank::SpriteSize;
constexpr quint16 Clear = 0xffff;

/// What a sprite looks like: numbers of the machine's colours (NineBitColour), or Clear.
using Look = std::array<quint16, SpriteBank::SpriteBytes>;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImportAgain)
};

QByteArray keyOf(const Look &look)
{
    return {reinterpret_cast<const char *>(look.data()), qsizetype(sizeof look)};
}

/// 16 × 16 indices of a picture as they look with a colour for each.
Look lookOf(const QImage &indexed, QPoint corner, const std::array<quint16, 256> &colours)
{
    Look look;
    for (int i = 0; i < SpriteBank::SpriteBytes; ++i)
        look[size_t(i)] = colours[indexed.constScanLine(corner.y() + i / Side)[corner.x() + i % Side]];
    return look;
}

/// What each pixel value of a bank looks like.
std::array<quint16, 256> coloursOf(const QList<QRgb> &table, const SpriteTransparency &transparency)
{
    std::array<quint16, 256> colours;
    for (int index = 0; index < 256; ++index) {
        colours[size_t(index)] =
            transparency.hides(index) ? Clear : quint16(NineBitColour::nearest(table.value(index, 0xff000000)));
    }
    return colours;
}

/// The numbers of sprites as they are remembered: pairs of a first one and how many follow each other.
QJsonArray rangesOf(const QList<int> &numbers)
{
    QJsonArray ranges;
    for (qsizetype i = 0; i < numbers.size();) {
        qsizetype end = i + 1;
        while (end < numbers.size() && numbers[end] == numbers[end - 1] + 1)
            ++end;
        ranges.append(QJsonArray{numbers[i], int(end - i)});
        i = end;
    }
    return ranges;
}

QList<int> numbersOf(const QJsonValue &ranges, int count)
{
    QList<int> numbers;
    QList<bool> known(count); // a file may name any of them twice
    const QJsonArray pairs = ranges.toArray();
    for (const QJsonValue &pair : pairs) {
        const int first = std::clamp(pair[0].toInt(), 0, count);
        const int last = int(std::min<qint64>(qint64(first) + std::max(pair[1].toInt(), 0), count));
        for (int number = first; number < last && !known[number]; ++number) {
            known[number] = true;
            numbers.append(number);
        }
    }
    return numbers;
}

/// The pieces of a picture as the importer makes them.
QList<Look> piecesOf(const IndexedSprites &sprites, bool distinct, const std::array<quint16, 256> &colours,
                     QWidget *window)
{
    QList<Look> pieces;
    if (distinct) {
        ImageSlicer slicer(sprites.pixels);
        const SlicingProgress progress(slicer, window);
        slicer.sliceIndexedSprites();
        for (int i = 0; i < slicer.pieceCount(); ++i)
            pieces.append(lookOf(slicer.piece(i), {}, colours));
        return pieces;
    }
    for (int y = 0; y + Side <= sprites.pixels.height(); y += Side) {
        for (int x = 0; x + Side <= sprites.pixels.width(); x += Side)
            pieces.append(lookOf(sprites.pixels, {x, y}, colours));
    }
    return pieces;
}

/// The numbers of a bank that pieces get: those that look like them keep theirs, others take those that were made of
/// the picture and are gone from it, and the rest comes behind all.
QList<int> placed(const QList<Look> &pieces, const QList<Look> &sprites, const QList<int> &imported)
{
    QHash<QByteArray, QList<int>> known;
    for (const int number : imported)
        known[keyOf(sprites[number])].append(number);
    QList<int> places(pieces.size(), -1);
    QSet<int> taken;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        QList<int> &alike = known[keyOf(pieces[i])];
        if (alike.isEmpty())
            continue;
        places[i] = alike.takeFirst();
        taken.insert(places[i]);
    }
    auto gone = imported.cbegin();
    int behind = int(sprites.size());
    for (int &place : places) {
        if (place >= 0)
            continue;
        while (gone != imported.cend() && taken.contains(*gone))
            ++gone;
        place = gone != imported.cend() ? *gone++ : behind++;
    }
    return places;
}

/// Finds entries of a palette for colours, and gives it those that it lacks where entries are free.
class Entries
{
public:
    Entries(const Palette &palette, const SpriteTransparency &transparency, int first, int count)
        : m_transparency(transparency)
        , m_first(first)
        , m_count(count)
    {
        m_words.copyColours(palette);
    }

    void lock(int entry) { m_locked.set(size_t(entry)); }
    void lockAll() { m_locked.set(); }
    [[nodiscard]] int entryFor(quint16 look)
    {
        if (look == Clear)
            return m_first / m_transparency.pixelCount() * m_transparency.pixelCount()
                + std::max(m_transparency.pixel(), 0);
        const auto known = m_known.constFind(look);
        return known != m_known.cend() ? *known : *m_known.insert(look, found(look));
    }
    [[nodiscard]] const Palette &words() const { return m_words; }

private:
    [[nodiscard]] int found(quint16 look)
    {
        int free = -1;
        int nearest = -1;
        for (int entry = m_first; entry < m_first + m_count; ++entry) {
            if (m_transparency.hides(entry))
                continue;
            const auto distance = [&](int other) {
                return NineBitColour::distance(look, NineBitColour::numberOf(m_words.rawColour(other)));
            };
            if (distance(entry) == 0) {
                lock(entry);
                return entry;
            }
            if (free < 0 && !m_locked.test(size_t(entry)))
                free = entry;
            if (nearest < 0 || distance(entry) < distance(nearest))
                nearest = entry;
        }
        if (free < 0)
            return std::max(nearest, 0);
        m_words.storeRawColour(free, NineBitColour::wordOf(look));
        lock(free);
        return free;
    }

    SpriteTransparency m_transparency;
    int m_first;
    int m_count;
    Palette m_words;
    std::bitset<256> m_locked;
    QHash<quint16, int> m_known;
};

} // namespace

QJsonObject choicesOf(const SpriteImport &import, int first, int count)
{
    QJsonObject choices{{QStringLiteral("newPalette"), import.paletteId.isNull()},
                        {QStringLiteral("keepColours"), import.keepColours},
                        {QStringLiteral("sprites"), QJsonArray{QJsonArray{first, count}}}};
    if (import.reduction)
        choices.insert(QStringLiteral("dithering"), ImportChoice::nameOf(*import.reduction));
    return choices;
}

ImportedAgain spritesAgain(SpriteBank &bank, const ImportRecord &record, QUndoStack *stack, QWidget *window)
{
    const QPointer<Palette> palette = bank.palette();
    const auto *project = qobject_cast<Project *>(bank.parent());
    if (!palette || !project)
        return {Texts::tr("The sprites have no palette any more"), {}, {}};
    const PictureFile picture = PictureFile::read(record.file);
    if (picture.image.isNull())
        return {picture.failure(), {}, {}};

    const bool newPalette = record.choices[QStringLiteral("newPalette")].toBool();
    const SpriteImport import{.file = record.file,
                              .name = bank.name(),
                              .depth = bank.depth(),
                              .paletteId = {},
                              .keepColours = record.choices[QStringLiteral("keepColours")].toBool(),
                              .reduction = ImportChoice::ditheringOf(record.choices[QStringLiteral("dithering")])};
    const IndexedSprites found = IndexedSprites::of(picture.image, import, newPalette ? nullptr : palette.data());
    // the colours of a new palette come in a form that quantises to what is shown
    QList<QRgb> shown = found.pixels.colorTable();
    if (newPalette) {
        Palette words;
        for (qsizetype i = 0; i < shown.size(); ++i)
            words.setColour(int(i), QColor::fromRgb(shown[i]), false);
        shown = words.colourTable();
    }
    const QList<Look> pieces = piecesOf(found, newPalette, coloursOf(shown, {bank.depth()}), window);
    if (pieces.isEmpty())
        return {Texts::tr("The picture is smaller than a sprite, which has 16 × 16 pixels"), {}, {}};

    const SpriteBank::State before = bank.snapshot();
    const auto colours = coloursOf(palette->colourTable(), bank.clearPixels());
    QList<Look> sprites;
    for (int i = 0; i < bank.count(); ++i)
        sprites.append(lookOf(before.image, {0, i * Side}, colours));
    const QList<int> places =
        placed(pieces, sprites, numbersOf(record.choices[QStringLiteral("sprites")], bank.count()));
    const int count = std::max(bank.count(), *std::max_element(places.cbegin(), places.cend()) + 1);
    if (count > SpriteBank::MaxCount)
        return {Texts::tr("The picture holds more sprites than fit into a bank"), {}, {}};

    const int depth = bank.clearPixels().pixelCount();
    const int group = newPalette ? 0 : found.pixels.constScanLine(0)[0] / depth * depth;
    Entries entries(*palette, bank.clearPixels(), group, depth);
    QSet<int> replaced;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (places[i] >= bank.count() || sprites[places[i]] != pieces[i])
            replaced.insert(places[i]);
    }
    if (!newPalette || Importing::hasOtherUsers(*project, *palette, bank))
        entries.lockAll();
    for (int i = 0; i < bank.count(); ++i) {
        const uchar *pixels = before.image.constScanLine(i * Side);
        for (int pixel = 0; !replaced.contains(i) && pixel < SpriteBank::SpriteBytes; ++pixel)
            entries.lock(pixels[pixel]);
    }
    SpriteBank::State after = before;
    after.image = before.image.copy(0, 0, Side, count * Side);
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (!replaced.contains(places[i]))
            continue;
        uchar *pixels = after.image.scanLine(places[i] * Side);
        std::transform(pieces[i].cbegin(), pieces[i].cend(), pixels,
                       [&entries](quint16 look) { return uchar(entries.entryFor(look)); });
    }

    QJsonObject choices = record.choices;
    QList<int> numbers = places;
    std::sort(numbers.begin(), numbers.end());
    choices.insert(QStringLiteral("sprites"), rangesOf(numbers));
    if (replaced.isEmpty())
        return {{}, Texts::tr("%1 is up to date").arg(bank.name()), choices};
    const UndoMacro step(stack, Texts::tr("Import Again"));
    replaceWords(*palette, entries.words(), stack);
    emit bank.structureAboutToChange();
    bank.restore(after);
    emit bank.structureChanged(Texts::tr("Import Again"));
    return {{}, Texts::tr("%1 is up to date; sprites that are new: %2").arg(bank.name()).arg(replaced.size()), choices};
}
