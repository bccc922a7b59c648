#include "importing/paletteedit.h"

#include "importing/texts.h"
#include "model/image.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/projectextras.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "undo/paletteorder.h"
#include "undo/reorderedcycles.h"
#include "undo/snapshotcommand.h"

#include <QPointer>
#include <QUndoStack>

#include <algorithm>

namespace Importing {
namespace {

constexpr int NeverMerges = -1;
constexpr qint64 NoTimeLimit = -1;

struct Entries
{
    QList<quint16> words; ///< all 256
    int transparency = -1;

    explicit Entries(const Palette &palette) : words(Palette::Size), transparency(palette.transparencyIndex())
    {
        for (int i = 0; i < Palette::Size; ++i)
            words[i] = palette.rawColour(i);
    }

    bool operator==(const Entries &) const = default;
};

/// What was changed since the first state was there stays.
void change(Palette &palette, const Entries &from, const Entries &to)
{
    if (palette.transparencyIndex() == from.transparency)
        palette.setTransparencyIndex(to.transparency);
    for (int i = 0; i < Palette::Size; ++i) {
        if (palette.rawColour(i) == from.words[i])
            palette.setRawColour(i, to.words[i]);
    }
}

} // namespace

void replaceEntries(Palette &palette, const NextData::PaletteContent &content, QUndoStack *stack)
{
    const Entries before(palette);
    Entries after = before;
    const qsizetype count = std::min<qsizetype>(content.words.size(), Palette::Size - content.first);
    std::copy_n(content.words.cbegin(), count, after.words.begin() + content.first);
    after.transparency = content.transparency.value_or(before.transparency);
    if (after == before)
        return;
    change(palette, before, after);
    if (!stack)
        return;
    const auto changeAgain = [guarded = QPointer<Palette>(&palette)](const Entries &from, const Entries &to) {
        if (guarded)
            change(*guarded, from, to);
    };
    stack->push(new SnapshotCommand<Entries>(Texts::tr("Import Palette"), before, after, changeAgain, NeverMerges,
                                             QVariant(), NoTimeLimit));
}

void replaceCycles(const Project &project, Palette &palette, const ColourCycles::List &cycles, QUndoStack *stack)
{
    const QPointer<ProjectExtras> extras = project.extras();
    const ColourCycles::List before = ColourCycles::of(*extras, palette.id());
    ColourCycles::set(*extras, palette.id(), cycles);
    if (!stack || before == cycles)
        return;
    const PaletteOrder made = PaletteHistory::of(palette).order();
    const auto change = [extras, made, guarded = QPointer<Palette>(&palette)](const ColourCycles::List &,
                                                                              const ColourCycles::List &to) {
        if (!extras || !guarded)
            return;
        const PaletteOrder moves = PaletteOrder::since(made, PaletteHistory::of(*guarded).order());
        ColourCycles::set(*extras, guarded->id(), ReorderedCycles::of(to, moves).kept);
    };
    stack->push(new SnapshotCommand<ColourCycles::List>(Texts::tr("Import Palette"), before, cycles, change,
                                                        NeverMerges, QVariant(), NoTimeLimit));
}

bool hasOtherUsers(const Project &project, const Palette &palette, const QObject &user)
{
    const auto others = [&](const auto &assets) {
        return std::any_of(assets.begin(), assets.end(), [&](const auto &asset) {
            return asset->palette() == &palette && static_cast<const QObject *>(asset) != &user;
        });
    };
    return others(project.tileSets()) || others(project.spriteBanks()) || others(project.images());
}

} // namespace Importing
