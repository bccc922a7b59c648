#include "store/palettedocument.h"

#include "model/palette.h"
#include "model/project.h"
#include "store/documentreader.h"

#include <QJsonArray>

#include <algorithm>

namespace {

constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String TransparencyIndex("transparency_index");
constexpr QLatin1String Colours("colours");

} // namespace

QJsonObject writePalette(const Palette &palette)
{
    QJsonArray colours;
    for (int index = 0; index < Palette::Size; ++index)
        colours.append(palette.rawColour(index));
    return {
        {Id, palette.id().toString()},
        {Name, palette.name()},
        {TransparencyIndex, palette.transparencyIndex()},
        {Colours, colours},
    };
}

void readPalette(DocumentReader &reader, const QJsonObject &object)
{
    const QUuid id = DocumentValue::idOrNew(object, Id);
    (void)DocumentReader::makeRoom(reader.project.palette(id));
    auto *palette = new Palette(&reader.project);
    palette->setId(id);
    palette->setName(DocumentValue::name(object, Name));
    palette->setTransparencyIndex(object.value(TransparencyIndex).toInt(-1));
    const QJsonArray colours = object.value(Colours).toArray();
    const int stored = int(std::min<qsizetype>(colours.size(), Palette::Size));
    for (int index = 0; index < stored; ++index)
        palette->storeRawColour(index, quint16(colours.at(index).toInt(palette->rawColour(index))));
    reader.project.addPalette(palette);
}
