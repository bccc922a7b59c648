#include "app/imports/spritesagain.h"

#include "app/imports/importchoice.h"
#include "app/imports/slicingprogress.h"
#include "app/imports/spriteimport.h"
#include "app/imports/spriterenewal.h"
#include "model/imageslicer.h"
#include "model/palette.h"
#include "model/picturefile.h"
#include "model/project.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>

namespace {

constexpr int Side = SpriteBank::SpriteSize;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImportAgain)
};

/// The pieces of a picture as the importer makes them.
QList<SpriteLook> piecesOf(const IndexedSprites &sprites, bool distinct, const SpriteLook::Colours &colours,
                           QWidget *window)
{
    QList<SpriteLook> pieces;
    if (distinct) {
        ImageSlicer slicer(sprites.pixels);
        const SlicingProgress progress(slicer, window);
        slicer.sliceIndexedSprites();
        for (int i = 0; i < slicer.pieceCount(); ++i)
            pieces.append(SpriteLook::of(slicer.piece(i), {}, colours));
        return pieces;
    }
    for (int y = 0; y + Side <= sprites.pixels.height(); y += Side) {
        for (int x = 0; x + Side <= sprites.pixels.width(); x += Side)
            pieces.append(SpriteLook::of(sprites.pixels, {x, y}, colours));
    }
    return pieces;
}

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
    if (!palette)
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
    const QList<SpriteLook> pieces = piecesOf(found, newPalette, SpriteLook::coloursOf(shown, {bank.depth()}), window);
    if (pieces.isEmpty())
        return {Texts::tr("The picture is smaller than a sprite, which has 16 × 16 pixels"), {}, {}};

    const int depth = bank.clearPixels().pixelCount();
    const int group = newPalette ? 0 : found.pixels.constScanLine(0)[0] / depth * depth;
    QJsonObject choices = record.choices;
    const RenewedSprites renewed =
        renewSprites(bank, pieces, ImportChoice::numbersOf(choices.value(QStringLiteral("sprites")), bank.count()),
                     group, newPalette, stack);
    if (!renewed.failure.isEmpty())
        return {renewed.failure, {}, {}};
    QList<int> numbers = renewed.places;
    std::sort(numbers.begin(), numbers.end());
    choices.insert(QStringLiteral("sprites"), ImportChoice::rangesOf(numbers));
    const QString told = renewed.replaced == 0
        ? Texts::tr("%1 is up to date").arg(bank.name())
        : Texts::tr("%1 is up to date; sprites that are new: %2").arg(bank.name()).arg(renewed.replaced);
    return {{}, told, choices};
}
