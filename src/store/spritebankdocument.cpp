#include "store/spritebankdocument.h"

#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "store/animationdocument.h"
#include "store/documentreader.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace {

constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String BoundPalette("palette");
constexpr QLatin1String Transparency("transparency");
constexpr QLatin1String Depth("depth");
constexpr QLatin1String Offsets("offsets");
constexpr QLatin1String Animations("animations");
constexpr QLatin1String FrameCells("anim");

QString pixelsMember(const QUuid &id)
{
    return QStringLiteral("sprite/%1.png").arg(id.toString());
}

QJsonArray writeOffsets(const QByteArray &offsets)
{
    QJsonArray array;
    for (const char offset : offsets)
        array.append(qint8(offset)); // signed on every machine
    return array;
}

QByteArray readOffsets(const QJsonArray &array)
{
    QByteArray offsets;
    offsets.reserve(array.size());
    for (const QJsonValue &offset : array)
        offsets.append(char(offset.toInt()));
    return offsets;
}

void readAnimation(DocumentReader &reader, SpriteBank &bank, const QJsonObject &object)
{
    const QPointer<SpriteAnim> animation = bank.addAnimation(DocumentValue::id(object, Id));
    animation->setName(DocumentValue::name(object, Name));
    animation->clearFrames(); // a new one has a frame
    AnimationDocument::read(reader, *animation, object, FrameCells, 1, AnimationDocument::FrameIds::New);
}

} // namespace

QJsonObject writeSpriteBank(const SpriteBank &bank, ProjectSnapshot &members)
{
    QJsonArray animations;
    for (const QPointer<SpriteAnim> &animation : bank.animations())
        animations.append(AnimationDocument::write(*animation, FrameCells));
    members.append({pixelsMember(bank.id()), bank.image()});
    return {
        {Id, bank.id().toString()},
        {Name, bank.name()},
        {BoundPalette, DocumentValue::reference(bank.paletteId())},
        {Transparency, bank.transparency()},
        {Depth, int(bank.depth())},
        {Offsets, writeOffsets(bank.offsets())},
        {Animations, animations},
    };
}

bool readSpriteBank(DocumentReader &reader, const QJsonObject &object)
{
    const auto depth = DocumentValue::enumerator(object, Depth, Quenmora::EightBit, Quenmora::EightBit);
    const QUuid id = DocumentValue::idOrNew(object, Id);
    const bool again = DocumentReader::makeRoom(reader.project.spriteBank(id));
    auto *bank = new SpriteBank(depth, &reader.project);
    bank->setId(id);
    bank->setName(DocumentValue::name(object, Name));
    bank->setTransparency(object.value(Transparency).toInt(-1));
    if (const QJsonArray offsets = object.value(Offsets).toArray(); !offsets.isEmpty())
        bank->setOffsets(readOffsets(offsets));
    for (const QJsonValue &animation : object.value(Animations).toArray())
        readAnimation(reader, *bank, animation.toObject());
    const QImage pixels = reader.readPicture(pixelsMember(id), DocumentReader::Use::Pixels, again).image;
    if (pixels.isNull())
        return reader.fail(QCoreApplication::translate("ProjectDocument", "Project has a missing sprite anim"));
    bank->setPalette(reader.project.palette(DocumentValue::id(object, BoundPalette)));
    bank->setWholeImage(pixels);
    reader.project.addSpriteBank(bank);
    return true;
}
