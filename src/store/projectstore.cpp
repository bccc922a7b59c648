#include "store/projectstore.h"

#include "model/map.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/rawfile.h"
#include "model/tileset.h"
#include "model/writeproblem.h"
#include "store/fileownership.h"
#include "store/packedmember.h"
#include "store/projectdocument.h"
#include "store/zipfile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// Milliseconds that a message stays in the status bar
constexpr int FileMessageTime = 2500;
constexpr int ExportMessageTime = 2000;

/// The file that is to be replaced: what a link leads to, so that it stays a link.
QString targetOf(const QString &fileName)
{
    const QFileInfo file(fileName);
    const QString target = file.isSymLink() ? file.canonicalFilePath() : QString(); // empty where it leads nowhere
    return target.isEmpty() ? fileName : target;
}

} // namespace

ProjectStore::ProjectStore(QObject *parent) : QObject(parent) { }

ProjectStore::~ProjectStore()
{
    delete m_project;
}

Project *ProjectStore::project() const
{
    return m_project;
}

Project *ProjectStore::newProject(const QString &name)
{
    close();
    m_project = new Project(this);
    m_project->setName(name);
    return m_project;
}

bool ProjectStore::load(const QString &fileName)
{
    ZipFile archive;
    if (!archive.openForReading(fileName))
        return failToLoad(tr("Invalid project file"), fileName);
    if (!m_project)
        newProject({});
    QString error;
    if (!readProject(
            *m_project, [&archive](const QString &member) { return archive.open(member); }, error)) {
        static_cast<void>(failToLoad(error, fileName));
        close();
        return false;
    }
    emit projectLoad(m_project->name());
    setFileName(fileName);
    emit showMessage(tr("Project loaded"), FileMessageTime);
    return true;
}

bool ProjectStore::save(bool backup)
{
    if (!m_project)
        return failToSave(tr("Could not create the project file"));
    // Nothing on disk is touched before all that is to be written is there.
    const ProjectSnapshot snapshot = snapshotOf(*m_project, true);
    if (const QString lost = unreadableMember(snapshot); !lost.isEmpty())
        return failToSave(tr("Could not write %1").arg(lost));
    const QList<PackedMember> members = packed(snapshot);
    const QString file = targetOf(m_fileName);
    if (!RawFile::isWritable(file))
        return failToSave(tr("Could not create the project file"));
    if (backup)
        backUp(file);
    ZipFile archive;
    if (!archive.openForWriting(file))
        return failToSave(tr("Could not create the project file"));
    m_incompleteFile = m_fileName;
    for (const PackedMember &member : members) {
        if (!archive.write(member))
            return failToSave(tr("Could not write %1").arg(member.name));
    }
    if (!archive.close())
        return failToSave(tr("Could not finish writing the project file"));
    m_incompleteFile.clear();
    emit showMessage(tr("Saved %1 to %2").arg(m_project->name(), QDir::toNativeSeparators(m_fileName)),
                     FileMessageTime);
    return true;
}

bool ProjectStore::saveAs(const QString &fileName)
{
    setFileName(fileName);
    const bool saved = save(false);
    if (!saved)
        m_fileName.clear();
    return saved;
}

QByteArray ProjectStore::fingerprint() const
{
    if (!m_project)
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const ProjectSnapshot snapshot = snapshotOf(*m_project, false);
    for (const ProjectMember &member : snapshot) {
        hash.addData(member.name.toUtf8());
        for (MemberBlocks blocks(member, &m_kept); !blocks.atEnd();)
            hash.addData(blocks.next().content());
    }
    return hash.result();
}

QList<PackedMember> ProjectStore::packed(const ProjectSnapshot &snapshot)
{
    QList<PackedMember> members;
    for (const ProjectMember &member : snapshot) {
        MemberPacker packer(member, m_kept);
        while (!packer.atEnd())
            packer.step();
        members.append(packer.packed());
    }
    m_kept.keepOnly(members);
    return members;
}

void ProjectStore::close()
{
    delete m_project;
    m_kept.clear();
    m_fileName.clear();
    m_incompleteFile.clear();
}

QString ProjectStore::backupOf(const QString &fileName)
{
    return targetOf(fileName) + QStringLiteral(".bak"); // a name may hold what arg() would replace
}

void ProjectStore::backUp(const QString &file) const
{
    if (!QFileInfo(file).isFile() || m_fileName == m_incompleteFile)
        return;
    const QString backupName = backupOf(file);
    QFile::remove(backupName);
    if (QFile::rename(file, backupName))
        FileOwnership::createLike(file, backupName);
}

bool ProjectStore::failToLoad(const QString &message, const QString &fileName)
{
    m_errorDetail = QDir::toNativeSeparators(fileName);
    emit loadError(message);
    return false;
}

bool ProjectStore::failToSave(const QString &message)
{
    m_errorDetail = QDir::toNativeSeparators(m_fileName);
    emit saveError(message);
    return false;
}

void ProjectStore::exportMap(const QString &dir, const QUuid &id)
{
    exportAsset(m_project ? m_project->map(id) : nullptr, dir,
                {tr("Invalid map id"), tr("Map exported"), tr("Exporting the map failed")});
}

void ProjectStore::exportTiles(const QString &dir, const QUuid &id)
{
    exportAsset(m_project ? m_project->tileSet(id) : nullptr, dir,
                {tr("Invalid tile set id"), tr("Tile set exported"), tr("Exporting the tile set failed")});
}

void ProjectStore::exportPalette(const QString &dir, const QUuid &id)
{
    exportAsset(m_project ? m_project->palette(id) : nullptr, dir,
                {tr("Invalid palette id"), tr("Palette exported"), tr("Exporting the palette failed")});
}

template <typename Asset>
void ProjectStore::exportAsset(const QPointer<Asset> &asset, const QString &dir, const ExportMessages &messages)
{
    m_errorDetail.clear();
    if (!asset) {
        emit saveError(messages.unknown);
    } else if (asset->exportToDirectory(dir)) {
        emit showMessage(messages.exported, ExportMessageTime);
        emit exported(asset->name(), QDir(dir).filePath(asset->exportFileName()));
    } else {
        m_errorDetail = writeProblem(dir, asset->exportFileName());
        emit saveError(messages.failed);
    }
}
