#pragma once

#include "store/projectdocument.h"

#include <QtCore>

/// Reads and edits the members of a project file in tests.
namespace ProjectFile {

inline MemberReader readerOf(const ProjectMembers &members)
{
    return [members](const QString &name) { return members.value(name); };
}

inline QJsonObject documentOf(const ProjectMembers &members)
{
    return QJsonDocument::fromJson(members.value("project.json")).object();
}

inline void setDocument(ProjectMembers &members, const QJsonObject &document)
{
    members.insert("project.json", QJsonDocument(document).toJson());
}

inline QJsonObject objectOf(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

/// A place in the document: keys of objects, and "0" for the first element of an array.
using Path = QStringList;

inline QJsonValue valueAt(QJsonValue value, const Path &path)
{
    for (const QString &step : path)
        value = value.isArray() ? value.toArray().first() : value.toObject().value(step);
    return value;
}

/// The value with the part at a path replaced; by Undefined takes a key away.
inline QJsonValue replaced(const QJsonValue &value, const Path &path, const QJsonValue &by)
{
    if (path.isEmpty())
        return by;
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        array.replace(0, replaced(array.first(), path.mid(1), by));
        return array;
    }
    QJsonObject object = value.toObject();
    object.insert(path.first(), replaced(object.value(path.first()), path.mid(1), by));
    return object;
}

inline void replace(ProjectMembers &members, const Path &path, const QJsonValue &by)
{
    setDocument(members, replaced(documentOf(members), path, by).toObject());
}

/// Tells the paths to all parts of a value.
template <class Visit>
void visitValues(const QJsonValue &value, const Path &path, Visit visit)
{
    if (!path.isEmpty())
        visit(path);
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        visitValues(member.value(), path + Path{member.key()}, visit);
    if (const QJsonArray array = value.toArray(); !array.isEmpty())
        visitValues(array.first(), path + Path{QStringLiteral("0")}, visit);
}

/// The members with the ids of all sprite animation frames cleared: those are new at every load.
inline ProjectMembers withoutSpriteFrameIds(ProjectMembers members)
{
    // a frame has the keys "anim", of whose cells none holds a list, and "id" after it
    static const QRegularExpression frameId("\"anim\": \\[[^]]*\\],\\s*\"id\": \\K\"[^\"]*\"");
    QString document = QString::fromUtf8(members.value("project.json"));
    members.insert("project.json", document.remove(frameId).toUtf8());
    return members;
}

} // namespace ProjectFile
