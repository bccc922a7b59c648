#include "app/imports/importrecord.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace {

constexpr std::array Kinds{"map", "sprites", "image", "palette", "file", "tiles"};

/// The folder that paths are seen from, and those above it that may be gone through: a path that climbs higher says
/// more about this computer than about the project.
constexpr int MostSteps = 3;

QString seenFrom(const QString &projectFile, const QString &file)
{
    if (projectFile.isEmpty())
        return file;
    const QString relative = QFileInfo(projectFile).dir().relativeFilePath(file);
    const bool near =
        QDir::isRelativePath(relative) && !relative.startsWith(QStringLiteral("../").repeated(MostSteps + 1));
    return near ? relative : file;
}

} // namespace

QJsonObject ImportRecord::toJson(const QString &projectFile) const
{
    return {{QStringLiteral("kind"), QLatin1String(Kinds[size_t(kind)])},
            {QStringLiteral("file"), seenFrom(projectFile, file)},
            {QStringLiteral("digest"), QString::fromLatin1(digest.toHex())},
            {QStringLiteral("choices"), choices}};
}

std::optional<ImportRecord> ImportRecord::fromJson(const QJsonValue &json, const QString &projectFile)
{
    const QString kind = json[QStringLiteral("kind")].toString();
    const auto known =
        std::find_if(Kinds.cbegin(), Kinds.cend(), [&kind](const char *name) { return kind == QLatin1String(name); });
    const QString file = json[QStringLiteral("file")].toString();
    if (known == Kinds.cend() || file.isEmpty() || (QDir::isRelativePath(file) && projectFile.isEmpty()))
        return {};
    return ImportRecord{Kind(known - Kinds.cbegin()),
                        QDir::cleanPath(QFileInfo(projectFile).dir().absoluteFilePath(file)),
                        QByteArray::fromHex(json[QStringLiteral("digest")].toString().toLatin1()),
                        json[QStringLiteral("choices")].toObject()};
}
