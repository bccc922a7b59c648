#include "importing/filekind.h"
#include "importing/kinds.h"
#include "model/picturefile.h"
#include "nextdata/reader.h"
#include "pictures/asepritefile.h"
#include "pictures/colourfile.h"
#include "pictures/tiledmap.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace Importing {
namespace {

/// Whether these are all there: the files of one name that make a palette, a tile set and a map.
bool belongsToDataSet(const QFileInfo &file)
{
    const QStringList suffixes{QStringLiteral("nxp"), QStringLiteral("nxt"), QStringLiteral("nxm"),
                               QStringLiteral("nxb")};
    return suffixes.contains(file.suffix()) && std::all_of(suffixes.cbegin(), suffixes.cend(), [&](const auto &suffix) {
               return QFileInfo(file.dir().filePath(file.completeBaseName() + u'.' + suffix)).isFile();
           });
}

/// Whether every second byte looks like the attributes of a map's cells: they take far fewer values than the indices.
bool looksLikeTwoBytes(const QByteArray &bytes)
{
    std::array<std::array<bool, 256>, 2> seen{};
    for (qsizetype i = 0; i < bytes.size(); ++i)
        seen[size_t(i % 2)][uchar(bytes[i])] = true;
    const auto values = [&seen](size_t half) { return std::count(seen[half].cbegin(), seen[half].cend(), true); };
    return values(1) <= 2 || values(1) * 2 <= values(0);
}

/// How probable it is that a file is what a reader reads; 0 when it cannot be.
int probability(const NextData::Reader &reader, const ImportFile &file, const QString &suffix)
{
    using Fit = NextData::Reader::Fit;
    const Fit fit = file.isWhole() ? reader.fit(file.bytes.size()) : Fit::None;
    if (fit == Fit::None)
        return 0;
    // whose beginning says where each of them is
    static const QStringList sure{QStringLiteral("block-animations"), QStringLiteral("sprite-animations"),
                                  QStringLiteral("map-sprites"), QStringLiteral("map-blocks"),
                                  QStringLiteral("palette-cycles")};
    if (sure.contains(reader.id))
        return reader.read(file.bytes, {}) ? 10 : 0;
    if (findFileKind(reader.id)->needsTarget) // any bytes would do
        return 1;
    // many things are called so
    const bool isNamed = suffix != QStringLiteral("bin") && reader.suffixes.contains(suffix);
    int points = isNamed ? (fit == Fit::Exact ? 8 : 6) : fit == Fit::Exact ? 4 : 2;
    if (reader.id == QStringLiteral("map-2byte") && !looksLikeTwoBytes(file.bytes))
        points -= 3;
    return std::max(points, 1);
}

QList<Guess> rawGuesses(const ImportFile &file, const QString &suffix)
{
    struct Candidate
    {
        const NextData::Reader *reader;
        int points;
    };
    QList<Candidate> candidates;
    for (const NextData::Reader &reader : NextData::readers()) {
        if (const int points = probability(reader, file, suffix); points > 0)
            candidates.append({&reader, points});
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const Candidate &a, const Candidate &b) { return a.points > b.points; });
    QList<Guess> guesses;
    for (const Candidate &candidate : candidates) {
        const NextData::Reader &reader = *candidate.reader;
        guesses.append({reader.id, reader.suggested ? reader.suggested(file.bytes.size()) : QMap<QString, QString>()});
    }
    return guesses;
}

} // namespace

QList<Guess> recognise(const ImportFile &file)
{
    // what says of itself what it is
    if (AsepriteFile::recognises(file.bytes))
        return {{Kinds::AsepriteSprites}, {Kinds::AsepriteTiles}, {Kinds::AsepriteImage}};
    if (TiledMap::recognises(file.bytes))
        return {{Kinds::Tiled}};
    if (TiledTileSet::recognises(file.bytes))
        return {{Kinds::TiledTiles}};
    if (ColourFile::recognises(file.bytes))
        return {{Kinds::Colours}};
    const QFileInfo info(file.path);
    const QString suffix = info.suffix().toLower();
    QList<Guess> guesses = rawGuesses(file, suffix);
    constexpr int ActBytes = 768; // and the count of colours
    if (file.size == ActBytes || file.size == ActBytes + 4)
        guesses.insert(suffix == QStringLiteral("act") ? 0 : guesses.size(), {Kinds::Colours});
    if (belongsToDataSet(info))
        guesses.insert(suffix == QStringLiteral("nxm") ? 0 : 1, {Kinds::DataSet});
    if (PictureFile::pixelCount(file.path) > 0)
        guesses =
            QList<Guess>{{Kinds::PictureMap}, {Kinds::PictureSprites}, {Kinds::PictureImage}, {Kinds::PicturePalette}}
            + guesses;
    if (guesses.isEmpty()) // too large for anything: reading it says so
        guesses.append({QStringLiteral("map-1byte")});
    return guesses;
}

} // namespace Importing
