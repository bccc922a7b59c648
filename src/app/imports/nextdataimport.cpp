#include "app/imports/nextdataimport.h"

#include "model/palette.h"
#include "model/project.h"
#include "model/tileset.h"
#include "ui/busy.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

constexpr int MostTiles = 512;
/// The map takes its size from the file.
constexpr QSize AnySize{1, 1};

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(NextDataImport)
};

MapImport failed(const QString &failure)
{
    return {nullptr, failure};
}

} // namespace

MapImport importNextData(Project &project, const QString &filePath, QWidget *parent)
{
    const QFileInfo chosen(filePath);
    const QString name = chosen.completeBaseName();
    const auto file = [&](const char *suffix) {
        return chosen.dir().filePath(name + QLatin1Char('.') + QLatin1String(suffix));
    };
    for (const char *suffix : {"nxp", "nxt", "nxm", "nxb"}) {
        if (!QFileInfo(file(suffix)).isFile())
            return failed(Texts::tr("Some of the required files are missing"));
    }

    const Busy busy(parent, Texts::tr("Importing %1…").arg(chosen.fileName()), QFileInfo(file("nxm")).size());
    const QPointer<Palette> palette = project.createPalette(CreateAction::Blank, name);
    if (!palette->importData(file("nxp")))
        return failed(Texts::tr("Could not import the palette data"));
    const QPointer<TileSet> tileSet = project.createTileSet(name, palette->id(), MostTiles, false);
    if (!tileSet->importNxt(file("nxt")))
        return failed(Texts::tr("Could not import the tile data"));
    const QPointer<Map> map = project.createMap(name, tileSet->id(), AnySize);
    if (!map->importNxm(file("nxm"), file("nxb")))
        return failed(Texts::tr("Could not import the map data"));
    return {map, {}};
}
