#pragma once

#include "store/keptblocks.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUuid>

class Project;

/// Owns the open project and knows the file that it belongs to: loads, saves and closes it, and exports
/// single assets.
///
/// There is never more than one project. Operations that can fail return false and say why by exactly
/// one loadError() or saveError(); after a failed load there is no project, after a failed save the
/// project in memory is as before.
class ProjectStore : public QObject
{
    Q_OBJECT

public:
    explicit ProjectStore(QObject *parent = nullptr);
    ~ProjectStore() override;

    /// Closes the open project and makes an empty one of that name, without a file.
    Project *newProject(const QString &name);

    /// Reads a project file into the open project, which is to be a new one. A file that is no archive
    /// leaves the project as it is; one that cannot be read to its end closes the project.
    [[nodiscard]] bool load(const QString &fileName);

    /// Writes the project to its file. With a backup the previous version of the file is kept as
    /// "%1.bak", also when saving fails.
    [[nodiscard]] bool save(bool backup);

    /// Writes the project to another file, which becomes its file. After a failure it has none.
    [[nodiscard]] bool saveAs(const QString &fileName);

    /// A SHA-1 digest (20 bytes) of everything that is saved but the list of open documents; empty
    /// without a project. Equal digests mean equal content.
    [[nodiscard]] QByteArray fingerprint() const;

    /// Destroys the open project, if any, and forgets its file.
    void close();

    /// The deflated blocks of what was saved last. Who writes copies of the project beside its file packs them through
    /// these, so that neither deflates again what the other has done.
    [[nodiscard]] KeptBlocks &keptBlocks() { return m_kept; }

    [[nodiscard]] Project *project() const;
    [[nodiscard]] QString fileName() const { return m_fileName; }
    void setFileName(const QString &fileName) { m_fileName = fileName; }

    /// Where the backup of a project file lies, if there is one: beside what a link leads to.
    [[nodiscard]] static QString backupOf(const QString &fileName);

    /// What the last failure that was told is about: the file, or why it could not be written.
    [[nodiscard]] QString errorDetail() const { return m_errorDetail; }

signals:
    /// A project file was read; name is the project's.
    void projectLoad(const QString &name);
    void loadError(const QString &message);
    /// Saving or exporting failed.
    void saveError(const QString &message);
    /// A message for the status bar; timeout in milliseconds.
    void showMessage(const QString &message, int timeout);
    /// An asset of that name was exported to a file.
    void exported(const QString &asset, const QString &filePath);

public slots:
    // Each writes one asset into a folder, in the asset's own raw format.
    void exportMap(const QString &dir, const QUuid &id);
    void exportTiles(const QString &dir, const QUuid &id);
    void exportPalette(const QString &dir, const QUuid &id);

private:
    /// How an export went, for the user.
    struct ExportMessages
    {
        QString unknown; ///< there is no such asset
        QString exported;
        QString failed;
    };

    template <typename Asset>
    void exportAsset(const QPointer<Asset> &asset, const QString &dir, const ExportMessages &messages);
    /// Keeps the file under the name of its backup, unless it is what a failed save left behind, which must
    /// not push out the last whole version.
    void backUp(const QString &file) const;
    [[nodiscard]] QList<PackedMember> packed(const ProjectSnapshot &snapshot);
    [[nodiscard]] bool failToLoad(const QString &message, const QString &fileName);
    [[nodiscard]] bool failToSave(const QString &message);

    QString m_fileName;
    QPointer<Project> m_project;
    QString m_errorDetail;
    KeptBlocks m_kept;
    QString m_incompleteFile; ///< the file that the last save began to write and could not finish, or none
};
