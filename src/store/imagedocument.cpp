#include "store/imagedocument.h"

#include "model/image.h"
#include "model/palette.h"
#include "model/project.h"
#include "store/documentreader.h"

#include <QCoreApplication>

namespace {

constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String BoundPalette("palette");
constexpr QLatin1String Type("type");

QString pixelsMember(const QUuid &id)
{
    return QStringLiteral("images/%1.png").arg(id.toString());
}

} // namespace

QJsonObject writeImage(const Image &image, ProjectSnapshot &members)
{
    members.append({pixelsMember(image.id()), image.image()});
    return {
        {Id, image.id().toString()},
        {Name, image.name()},
        {BoundPalette, DocumentValue::reference(image.paletteId())},
        {Type, int(image.mode())},
    };
}

bool readImage(DocumentReader &reader, const QJsonObject &object)
{
    const auto mode = DocumentValue::enumerator(object, Type, Quenmora::LoRes_128x96, Quenmora::Layer2_256x192);
    const QUuid id = DocumentValue::id(object, Id);
    const bool again = DocumentReader::makeRoom(reader.project.image(id));
    auto *image = new Image(mode, &reader.project);
    image->setId(id);
    image->setName(DocumentValue::name(object, Name));
    const QImage pixels = reader.readPicture(pixelsMember(id), DocumentReader::Use::Pixels, again).image;
    if (pixels.isNull())
        return reader.fail(
            QCoreApplication::translate("ProjectDocument", "Failed to load tile image %1").arg(image->name()));
    if (const auto palette = reader.project.palette(DocumentValue::id(object, BoundPalette)))
        image->setPalette(palette);
    image->setImage(pixels);
    reader.project.addImage(image);
    return true;
}
