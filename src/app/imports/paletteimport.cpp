#include "app/imports/paletteimport.h"

#include "importing/paletteedit.h"
#include "model/image.h"
#include "model/nextcolour.h"
#include "model/nximage.h"
#include "model/picturefile.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "pictures/machinecolours.h"

#include <QFileInfo>
#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <bitset>

namespace {

using Words = QList<quint16>;

Words wordsOf(const Palette &palette)
{
    Words words(Palette::Size);
    for (int i = 0; i < Palette::Size; ++i)
        words[i] = palette.rawColour(i);
    return words;
}

bool hasPaletteSuffix(const QString &fileName)
{
    static const QStringList suffixes{QStringLiteral("pal"), QStringLiteral("npl"), QStringLiteral("nxp")};
    return suffixes.contains(QFileInfo(fileName).suffix(), Qt::CaseInsensitive);
}

/// The level of a component. A picture of this program shows level 6 as 219, which is the one component of
/// the hardware's that quantises to another level than its own.
int levelOf(int component)
{
    constexpr int Level = 6;
    return component == NextColour::componentOf(Level) ? Level : NextColour::levelOf(component);
}

quint16 quantised(QRgb colour)
{
    return NextColour::compose(levelOf(qRed(colour)), levelOf(qGreen(colour)), levelOf(qBlue(colour)), false);
}

/// The words of a colour table: those of the machine's own colours when it has no others.
Words wordsOfTable(const QList<QRgb> &colours)
{
    const bool keepColours =
        std::all_of(colours.cbegin(), colours.cend(), [](QRgb colour) { return MachineColours::wordOf(colour); });
    Words words;
    for (const QRgb colour : colours)
        words.append(keepColours ? *MachineColours::wordOf(colour) : quantised(colour));
    return words;
}

/// The distinct words of a picture's pixels, row by row. Clear pixels have none.
Words distinctWords(const QImage &picture)
{
    const bool keepColours = MachineColours::areIn(picture);
    std::bitset<0x10000> seen;
    Words words;
    for (int y = 0; y < picture.height() && words.size() < MachineColours::Count; ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(line[x]) < NxImage::LeastAlpha)
                continue;
            const quint16 word = keepColours ? *MachineColours::wordOf(line[x]) : quantised(line[x]);
            if (!seen.test(word)) {
                seen.set(word);
                words.append(word);
            }
        }
    }
    return words;
}

/// The words that a picture file brings; none when it is no picture.
Words wordsOfPicture(const QString &fileName)
{
    const QImage picture = PictureFile::read(fileName).image;
    return picture.colorTable().isEmpty() ? distinctWords(picture.convertToFormat(QImage::Format_ARGB32))
                                          : wordsOfTable(picture.colorTable());
}

} // namespace

std::optional<Words> readPaletteFile(const QString &fileName, Palette &words)
{
    // a small picture may be just as long as a palette file
    const Words fromPicture = hasPaletteSuffix(fileName) ? Words() : wordsOfPicture(fileName);
    if (fromPicture.isEmpty())
        return words.importData(fileName) ? std::optional(Words()) : std::nullopt;
    const int taken = qMin(int(fromPicture.size()), Palette::Size);
    for (int i = 0; i < taken; ++i)
        words.storeRawColour(i, fromPicture[i]);
    return fromPicture.mid(taken);
}

void replaceWords(Palette &palette, const Palette &words, QUndoStack *stack)
{
    Importing::replaceEntries(palette, {.words = wordsOf(words)}, stack);
}

Palette *createPaletteOf(Project &project, const QString &name, const QList<QRgb> &colours)
{
    Palette words;
    for (int i = 0; i < qMin(colours.size(), qsizetype(Palette::Size)); ++i)
        words.setColour(i, QColor::fromRgb(colours[i]), false);
    const QPointer<Palette> palette = project.createPalette(CreateAction::Blank, name);
    palette->copyColours(words);
    return palette;
}
