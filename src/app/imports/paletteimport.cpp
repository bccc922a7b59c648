#include "app/imports/paletteimport.h"

#include "model/nximage.h"
#include "model/project.h"
#include "undo/snapshotcommand.h"

#include <QCoreApplication>
#include <QImageReader>
#include <QPointer>
#include <QUndoStack>

#include <algorithm>
#include <memory>

namespace {

using Words = QList<quint16>;

constexpr int NeverMerges = -1;
constexpr qint64 NoTimeLimit = -1;

Words wordsOf(const Palette &palette)
{
    Words words(Palette::Size);
    for (int i = 0; i < Palette::Size; ++i)
        words[i] = palette.rawColour(i);
    return words;
}

void setWords(Palette &palette, const Words &words)
{
    for (int i = 0; i < Palette::Size; ++i)
        palette.setRawColour(i, words[i]);
}

/// Sets the first entries to colours, snapped.
void setColours(Palette &palette, const QList<QRgb> &colours)
{
    const qsizetype count = std::min(colours.size(), qsizetype(Palette::Size));
    for (qsizetype i = 0; i < count; ++i)
        palette.setColour(int(i), QColor::fromRgb(colours[i]), false);
}

/// The colours that a picture file brings; none when it is no picture.
QList<QRgb> coloursOf(const QString &fileName)
{
    QImageReader reader(fileName);
    if (!NxImage::accepts(reader.size()))
        return {};
    const QImage picture = reader.read();
    if (!picture.colorTable().isEmpty())
        return picture.colorTable();
    NxImage snapped;
    snapped.setImage(picture);
    return snapped.colours();
}

} // namespace

bool readPaletteFile(const QString &fileName, Palette &words)
{
    if (words.importData(fileName))
        return true;
    const QList<QRgb> colours = coloursOf(fileName);
    setColours(words, colours);
    return !colours.isEmpty();
}

void replaceWords(Palette &palette, const Palette &words, QUndoStack *stack)
{
    const Words before = wordsOf(palette);
    const Words after = wordsOf(words);
    if (before == after)
        return;
    setWords(palette, after);
    if (!stack)
        return;
    const auto restore = [guarded = QPointer<Palette>(&palette)](const Words &state) {
        if (guarded)
            setWords(*guarded, state);
    };
    stack->push(new SnapshotCommand<Words>(QCoreApplication::translate("PaletteImport", "Import Palette"), before,
                                           after, restore, NeverMerges, QVariant(), NoTimeLimit));
}

Palette *createPaletteOf(Project &project, const QString &name, const QList<QRgb> &colours)
{
    Palette words;
    setColours(words, colours);
    const QPointer<Palette> palette = project.createPalette(CreateAction::Blank, name);
    palette->copyColours(words);
    return palette;
}
