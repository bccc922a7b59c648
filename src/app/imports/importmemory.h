#pragma once

#include "app/filestate.h"
#include "app/imports/importagain.h"
#include "app/imports/importrecord.h"
#include "model/project.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QUuid>

/// Remembers where the assets of the open project came from, beside the project, and sees when these files change.
class ImportMemory : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The open project, or null, and its file, if it has one.
    void setProject(const QPointer<Project> &project, const QString &projectFile);
    /// The project is going to be kept as this file: records of assets that are gone are dropped, and the others name
    /// their files as seen from there.
    void moveTo(const QString &projectFile);

    /// Remembers that an asset was made of a file as it is now.
    void remember(const QUuid &asset, ImportRecord::Kind kind, const QString &file, const QJsonObject &choices);
    /// Remembers that an asset, and what came with it, is up to date with its file.
    void renew(const QUuid &asset, const ImportedAgain &done);
    [[nodiscard]] std::optional<ImportRecord> recordOf(const QUuid &asset) const;
    [[nodiscard]] bool knows(const QUuid &asset) const { return recordOf(asset).has_value(); }

    /// The assets whose files have another content by now, unless that was said to be of no interest. Only files with
    /// other times or sizes than before are read.
    [[nodiscard]] QList<QUuid> changedAssets();
    /// Takes the files of these assets as they are.
    void dismiss(const QList<QUuid> &assets);

signals:
    /// Something else is remembered now.
    void changed();

private:
    [[nodiscard]] bool hasAsset(const QUuid &id) const;
    [[nodiscard]] const FileState &stateOf(const QString &file);
    void store(const QUuid &asset, const ImportRecord &record);

    QPointer<Project> m_project;
    QString m_projectFile;
    QHash<QString, FileState> m_states; ///< by file
    QHash<QString, QByteArray> m_dismissed; ///< by file, its digest then
};
