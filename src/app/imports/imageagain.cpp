#include "app/imports/imageagain.h"

#include "app/imports/importchoice.h"
#include "app/imports/paletteimport.h"
#include "editors/canvas/imageimport.h"
#include "importing/paletteedit.h"
#include "model/image.h"
#include "model/palette.h"
#include "model/picturefile.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "undo/pixeleditcommand.h"
#include "undo/undomacro.h"

#include <QCoreApplication>
#include <QPointer>
#include <QUndoStack>

#include <algorithm>
#include <cstring>

namespace {

constexpr int FewColours = 16;

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ImportAgain)
};

ImageImport importOf(const QJsonObject &choices)
{
    return {.scale = choices[QStringLiteral("scale")].toBool(),
            .keepColours = choices[QStringLiteral("keepColours")].toBool(),
            .keepClearPixels = choices[QStringLiteral("keepClear")].toBool(),
            .newPalette = choices[QStringLiteral("newPalette")].toBool(),
            .reduction = ImportChoice::ditheringOf(choices[QStringLiteral("dithering")])};
}

/// The image with pixels at its top left, as far as they lie inside.
QImage covered(QImage image, const QImage &pixels)
{
    const int width = std::min(image.width(), pixels.width());
    for (int y = 0; y < std::min(image.height(), pixels.height()); ++y)
        std::memcpy(image.scanLine(y), pixels.constScanLine(y), size_t(width));
    return image;
}

} // namespace

QJsonObject choicesOf(const ImageImport &import)
{
    QJsonObject choices{{QStringLiteral("scale"), import.scale},
                        {QStringLiteral("keepColours"), import.keepColours},
                        {QStringLiteral("keepClear"), import.keepClearPixels},
                        {QStringLiteral("newPalette"), import.newPalette}};
    if (import.reduction)
        choices.insert(QStringLiteral("dithering"), ImportChoice::nameOf(*import.reduction));
    return choices;
}

ImportedAgain imageAgain(Image &image, const ImportRecord &record, QUndoStack *stack)
{
    const QPointer<Palette> palette = image.palette();
    const auto *project = qobject_cast<Project *>(image.parent());
    if (!palette || !project)
        return {Texts::tr("The image has no palette any more"), {}, {}};
    const PictureFile picture = PictureFile::read(record.file);
    if (picture.image.isNull())
        return {picture.failure(), {}, {}};
    ImageImport import = importOf(record.choices);
    // what others draw with stays as it is, and the picture takes the nearest of it
    const bool newColours = import.newPalette && !Importing::hasOtherUsers(*project, *palette, image);
    if (import.newPalette && !newColours) {
        import.newPalette = false;
        import.reduction = import.reduction.value_or(Dithering::None);
    }
    const int colours = image.mode() == Quenmora::Layer2_640x256 ? FewColours : Palette::Size;
    const QImage before = image.image();
    const ImageImport::Result result = import.convert(picture.image, *palette, before.size(), colours);
    const QImage after = covered(before, result.pixels);

    const UndoMacro step(stack, Texts::tr("Import Again"));
    if (newColours) {
        Palette words;
        for (int i = 0; i < Palette::Size; ++i)
            words.setColour(i, QColor::fromRgb(result.pixels.color(i)), false);
        replaceWords(*palette, words, stack);
    }
    image.setImage(after);
    if (stack) {
        const auto apply = [guarded = QPointer(&image)](const QImage &pixels) {
            if (guarded)
                guarded->setImage(pixels);
        };
        stack->push(new PixelEditCommand(Texts::tr("Import Again"), before, after, apply, {}, PixelEditCommand::None));
    }
    return {{}, Texts::tr("%1 is up to date").arg(image.name()), record.choices};
}
