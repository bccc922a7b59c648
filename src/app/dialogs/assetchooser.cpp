#include "app/dialogs/assetchooser.h"

#include "model/palette.h"
#include "model/project.h"

#include <QImage>
#include <QPixmap>

#include <algorithm>

namespace {

/// The assets in the order of their names.
template <typename Asset>
QList<QPointer<Asset>> byName(QList<QPointer<Asset>> assets)
{
    std::sort(assets.begin(), assets.end(),
              [](const auto &a, const auto &b) { return a->name().localeAwareCompare(b->name()) < 0; });
    return assets;
}

/// The colours of a palette as a small square.
QIcon swatchOf(const Palette &palette)
{
    QImage swatch(16, 16, QImage::Format_RGB32);
    const QList<QRgb> colours = palette.colourTable();
    for (int index = 0; index < Palette::Size; ++index)
        swatch.setPixel(index % 16, index / 16, colours[index]);
    // large enough for every pixel ratio
    return QPixmap::fromImage(swatch.scaled(64, 64));
}

/// Room for so many letters is enough for names, which may be long.
constexpr int UsualLength = 20;

} // namespace

AssetChooser::AssetChooser(QWidget *parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(UsualLength);
}

void AssetChooser::addNew(const QString &text)
{
    const int letters = fontMetrics().horizontalAdvance(text) / fontMetrics().horizontalAdvance(u'X') + 1;
    setMinimumContentsLength(std::max(letters, UsualLength));
    addItem(text, QUuid());
}

void AssetChooser::offerPalettes(const Project &project, const QString &newPalette)
{
    const QUuid chosen = id();
    clear();
    setPlaceholderText(tr("No palettes"));
    if (!newPalette.isEmpty())
        addNew(newPalette);
    for (const QPointer<Palette> &palette : byName(project.palettes()))
        addItem(swatchOf(*palette), palette->name(), palette->id());
    choose(chosen);
}

void AssetChooser::offerTileSets(const Project &project, const QString &newTileSet)
{
    offerAssets(project, NextData::AssetKind::TileSet, newTileSet);
    setPlaceholderText(tr("No tile sets"));
}

void AssetChooser::offerAssets(const Project &project, NextData::AssetKind kind, const QString &newAsset)
{
    if (kind == NextData::AssetKind::Palette)
        return offerPalettes(project, newAsset);
    const QUuid chosen = id();
    clear();
    setPlaceholderText(tr("None"));
    if (!newAsset.isEmpty())
        addNew(newAsset);
    QList<NextData::Source> sources = NextData::Source::all(project);
    sources.removeIf([kind](const NextData::Source &source) { return source.kind() != kind; });
    std::stable_sort(sources.begin(), sources.end(), [](const NextData::Source &a, const NextData::Source &b) {
        return a.name().localeAwareCompare(b.name()) < 0;
    });
    for (const NextData::Source &source : std::as_const(sources))
        addItem(source.name(), source.id());
    choose(chosen);
}

void AssetChooser::choose(const QUuid &id)
{
    setEnabled(count() > 0);
    const int index = findData(id);
    if (index >= 0)
        setCurrentIndex(index);
    else if (currentIndex() < 0 && count() > 0)
        setCurrentIndex(0);
}

QString AssetChooser::newPaletteProblem(const QString &name) const
{
    const bool taken = findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0;
    return id().isNull() && taken ? tr("There is a palette of this name already; choose it, or another name")
                                  : QString();
}
