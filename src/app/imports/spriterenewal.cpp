#include "app/imports/spriterenewal.h"

#include "app/imports/paletteimport.h"
#include "importing/paletteedit.h"
#include "model/palette.h"
#include "model/project.h"
#include "pictures/ninebitcolour.h"
#include "undo/undomacro.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <bitset>

namespace {

constexpr int Side = SpriteBank::SpriteSize;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImportAgain)
};

QByteArray keyOf(const SpriteLook &look)
{
    return {reinterpret_cast<const char *>(look.pixels.data()), qsizetype(sizeof look.pixels)};
}

/// The numbers of a bank that pieces get: those that look like them keep theirs, others take those that were made of
/// the picture and are gone from it, and the rest comes behind all.
QList<int> placed(const QList<SpriteLook> &pieces, const QList<SpriteLook> &sprites, const QList<int> &imported)
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
        if (look == SpriteLook::Clear)
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

SpriteLook::Colours SpriteLook::coloursOf(const QList<QRgb> &table, const SpriteTransparency &transparency)
{
    Colours colours;
    for (int index = 0; index < 256; ++index) {
        colours[size_t(index)] =
            transparency.hides(index) ? Clear : quint16(NineBitColour::nearest(table.value(index, 0xff000000)));
    }
    return colours;
}

SpriteLook SpriteLook::of(const QImage &indexed, QPoint corner, const Colours &colours)
{
    SpriteLook look;
    for (int i = 0; i < SpriteBank::SpriteBytes; ++i)
        look.pixels[size_t(i)] = colours[indexed.constScanLine(corner.y() + i / Side)[corner.x() + i % Side]];
    return look;
}

QList<SpriteLook> SpriteLook::allOf(const SpriteBank &bank)
{
    const QPointer<Palette> palette = bank.palette();
    const Colours colours = coloursOf(palette ? palette->colourTable() : QList<QRgb>(), bank.clearPixels());
    const QImage image = bank.image();
    QList<SpriteLook> looks;
    for (int i = 0; i < bank.count(); ++i)
        looks.append(of(image, {0, i * Side}, colours));
    return looks;
}

RenewedSprites renewSprites(SpriteBank &bank, const QList<SpriteLook> &sprites, const QList<int> &imported,
                            int firstColour, bool mayAddColours, QUndoStack *stack)
{
    const QPointer<Palette> palette = bank.palette();
    const auto *project = qobject_cast<Project *>(bank.parent());
    if (!palette || !project)
        return {.failure = Texts::tr("The sprites have no palette any more")};
    const QList<SpriteLook> known = SpriteLook::allOf(bank);
    RenewedSprites renewed{.places = placed(sprites, known, imported)};
    const QList<int> &places = renewed.places;
    const int last = places.isEmpty() ? -1 : *std::max_element(places.cbegin(), places.cend());
    const int count = std::max(bank.count(), last + 1);
    if (count > SpriteBank::MaxCount)
        return {.failure = Texts::tr("The picture holds more sprites than fit into a bank")};

    QSet<int> replaced;
    for (qsizetype i = 0; i < sprites.size(); ++i) {
        if (places[i] >= bank.count() || known[places[i]] != sprites[i])
            replaced.insert(places[i]);
    }
    renewed.replaced = replaced.size();
    if (replaced.isEmpty())
        return renewed;
    const SpriteBank::State before = bank.snapshot();
    Entries entries(*palette, bank.clearPixels(), firstColour, bank.clearPixels().pixelCount());
    if (!mayAddColours || Importing::hasOtherUsers(*project, *palette, bank))
        entries.lockAll();
    for (int i = 0; i < bank.count(); ++i) {
        const uchar *pixels = before.image.constScanLine(i * Side);
        for (int pixel = 0; !replaced.contains(i) && pixel < SpriteBank::SpriteBytes; ++pixel)
            entries.lock(pixels[pixel]);
    }
    SpriteBank::State after = before;
    after.image = before.image.copy(0, 0, Side, count * Side);
    for (qsizetype i = 0; i < sprites.size(); ++i) {
        if (!replaced.contains(places[i]))
            continue;
        uchar *pixels = after.image.scanLine(places[i] * Side);
        std::transform(sprites[i].pixels.cbegin(), sprites[i].pixels.cend(), pixels,
                       [&entries](quint16 look) { return uchar(entries.entryFor(look)); });
    }
    const UndoMacro step(stack, Texts::tr("Import Again"));
    replaceWords(*palette, entries.words(), stack);
    emit bank.structureAboutToChange();
    bank.restore(after);
    emit bank.structureChanged(Texts::tr("Import Again"));
    return renewed;
}
