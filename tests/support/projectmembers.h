#pragma once

#include "store/projectdocument.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

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

/// The members with the ids of all sprite animation frames cleared: those are new at every load.
inline ProjectMembers withoutSpriteFrameIds(ProjectMembers members)
{
    QJsonObject document = documentOf(members);
    QJsonArray banks = document.value("sprites").toArray();
    for (auto &&bankValue : banks) {
        QJsonObject bank = bankValue.toObject();
        QJsonArray animations = bank.value("animations").toArray();
        for (auto &&animationValue : animations) {
            QJsonObject animation = animationValue.toObject();
            QJsonArray frames = animation.value("frames").toArray();
            for (auto &&frameValue : frames) {
                QJsonObject frame = frameValue.toObject();
                frame.insert("id", "");
                frameValue = frame;
            }
            animation.insert("frames", frames);
            animationValue = animation;
        }
        bank.insert("animations", animations);
        bankValue = bank;
    }
    document.insert("sprites", banks);
    setDocument(members, document);
    return members;
}

} // namespace ProjectFile
