#include "recovery/recoverymanifest.h"

#include "store/zipfile.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr int FormatVersion = 1;
constexpr qsizetype ChecksumDigits = 40;

constexpr QLatin1String Version("version");
constexpr QLatin1String Name("name");
constexpr QLatin1String File("file");
constexpr QLatin1String Stamp("stamp");
constexpr QLatin1String Time("time");
constexpr QLatin1String Picture("picture");
constexpr QLatin1String Members("members");
constexpr QLatin1String Size("size");
constexpr QLatin1String Checksum("crc32");
constexpr QLatin1String Pieces("pieces");

QByteArray checksumOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

/// Whether a name is one that fileNameFor() gives, and so none that leads elsewhere.
bool isFileName(const QString &name)
{
    return name.size() == ChecksumDigits && std::all_of(name.cbegin(), name.cend(), [](QChar c) {
               return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
           });
}

std::optional<RecoveryManifest::Member> readMember(const QJsonObject &object)
{
    RecoveryManifest::Member member;
    member.name = object.value(Name).toString();
    member.size = object.value(Size).toInteger(-1);
    member.checksum = quint32(object.value(Checksum).toInteger());
    for (const QJsonValue &piece : object.value(Pieces).toArray())
        member.pieces.append(piece.toString());
    const bool isPossible = member.size >= 0 && member.size <= ZipFile::MaxMemberSize
        && std::all_of(member.pieces.cbegin(), member.pieces.cend(), isFileName);
    return isPossible ? std::optional(member) : std::nullopt;
}

} // namespace

QSet<QString> RecoveryManifest::files() const
{
    QSet<QString> names;
    if (!picture.isEmpty())
        names.insert(picture);
    for (const Member &member : members)
        names.unite(QSet<QString>(member.pieces.cbegin(), member.pieces.cend()));
    return names;
}

QByteArray RecoveryManifest::toText() const
{
    QJsonArray list;
    for (const Member &member : members) {
        list.append(QJsonObject{{Name, member.name},
                                {Size, member.size},
                                {Checksum, qint64(member.checksum)},
                                {Pieces, QJsonArray::fromStringList(member.pieces)}});
    }
    const QJsonObject manifest{{Version, FormatVersion},
                               {Name, projectName},
                               {File, projectFile},
                               {Stamp, fileStamp},
                               {Time, time.toUTC().toString(Qt::ISODateWithMs)},
                               {Picture, picture},
                               {Members, list}};
    const QByteArray json = QJsonDocument(manifest).toJson(QJsonDocument::Compact);
    return checksumOf(json) + '\n' + json;
}

std::optional<RecoveryManifest> RecoveryManifest::fromText(const QByteArray &text)
{
    const QByteArray json = text.mid(ChecksumDigits + 1);
    if (checksumOf(json) != text.left(ChecksumDigits))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    RecoveryManifest manifest;
    manifest.projectName = object.value(Name).toString();
    manifest.projectFile = object.value(File).toString();
    manifest.fileStamp = object.value(Stamp).toString();
    manifest.time = QDateTime::fromString(object.value(Time).toString(), Qt::ISODateWithMs);
    manifest.picture = object.value(Picture).toString();
    for (const QJsonValue &value : object.value(Members).toArray()) {
        const auto member = readMember(value.toObject());
        if (!member)
            return {};
        manifest.members.append(*member);
    }
    const bool isPossible = object.value(Version).toInt() == FormatVersion && !manifest.members.isEmpty()
        && (manifest.picture.isEmpty() || isFileName(manifest.picture));
    return isPossible ? std::optional(manifest) : std::nullopt;
}

QString RecoveryManifest::stampOf(const QString &fileName)
{
    const QFileInfo file(fileName);
    return file.isFile() ? QStringLiteral("%1 %2").arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch())
                         : QString();
}

QString RecoveryManifest::fileNameFor(const QByteArray &bytes)
{
    return QString::fromLatin1(checksumOf(bytes));
}
