#include "app/imports/importmemory.h"

#include "model/image.h"
#include "model/map.h"
#include "model/palette.h"
#include "model/projectextras.h"
#include "model/spritebank.h"
#include "model/tileset.h"

#include <QFileInfo>

namespace {

const QString Section = QStringLiteral("imports");
/// A file beyond that is not read to see whether it changed: the extras of a stranger's project may name any.
constexpr qint64 MostBytes = qint64(256) << 20;

} // namespace

void ImportMemory::setProject(const QPointer<Project> &project, const QString &projectFile)
{
    m_project = project;
    m_projectFile = projectFile;
    m_states.clear();
    m_dismissed.clear();
    emit changed();
}

bool ImportMemory::hasAsset(const QUuid &id) const
{
    return m_project->map(id) || m_project->tileSet(id) || m_project->spriteBank(id) || m_project->image(id)
        || m_project->palette(id);
}

void ImportMemory::moveTo(const QString &projectFile)
{
    if (!m_project)
        return;
    const QJsonObject known = m_project->extras()->section(Section).toObject();
    QJsonObject moved;
    for (auto entry = known.begin(); entry != known.end(); ++entry) {
        const auto record = ImportRecord::fromJson(*entry, m_projectFile);
        if (hasAsset(QUuid(entry.key())))
            moved.insert(entry.key(),
                         record ? QJsonValue(record->toJson(projectFile))
                                : QJsonValue(*entry)); // which a later version wrote
    }
    m_projectFile = projectFile;
    if (moved != known)
        m_project->extras()->setSection(Section, moved.isEmpty() ? QJsonValue(QJsonValue::Undefined) : moved);
}

void ImportMemory::store(const QUuid &asset, const ImportRecord &record)
{
    QJsonObject known = m_project->extras()->section(Section).toObject();
    known.insert(asset.toString(), record.toJson(m_projectFile));
    m_project->extras()->setSection(Section, known);
    emit changed();
}

void ImportMemory::remember(const QUuid &asset, ImportRecord::Kind kind, const QString &file,
                            const QJsonObject &choices)
{
    if (!m_project)
        return;
    const QString path = QFileInfo(file).absoluteFilePath();
    store(asset, {kind, path, stateOf(path).digest(), choices});
}

void ImportMemory::renew(const QUuid &asset, const ImportedAgain &done)
{
    const auto record = recordOf(asset);
    if (!record)
        return;
    remember(asset, record->kind, record->file, done.choices);
    for (const QUuid &other : done.together) {
        const auto its = recordOf(other);
        if (its && QFileInfo(its->file).completeBaseName() == QFileInfo(record->file).completeBaseName())
            remember(other, its->kind, its->file, done.choices);
    }
}

std::optional<ImportRecord> ImportMemory::recordOf(const QUuid &asset) const
{
    if (!m_project || asset.isNull())
        return {};
    return ImportRecord::fromJson(m_project->extras()->section(Section)[asset.toString()], m_projectFile);
}

const FileState &ImportMemory::stateOf(const QString &file)
{
    FileState &state = m_states[file];
    if (state.fileName().isEmpty() || !state.isCurrent())
        state = FileState(file);
    return state;
}

QList<QUuid> ImportMemory::changedAssets()
{
    QList<QUuid> changed;
    const QJsonObject known = m_project ? m_project->extras()->section(Section).toObject() : QJsonObject();
    for (auto entry = known.begin(); entry != known.end(); ++entry) {
        const QUuid asset(entry.key());
        const auto record = recordOf(asset);
        if (!record || !hasAsset(asset) || QFileInfo(record->file).size() > MostBytes)
            continue;
        const QByteArray digest = stateOf(record->file).digest();
        if (!digest.isEmpty() && digest != record->digest && digest != m_dismissed.value(record->file))
            changed.append(asset);
    }
    return changed;
}

void ImportMemory::dismiss(const QList<QUuid> &assets)
{
    for (const QUuid &asset : assets) {
        if (const auto record = recordOf(asset))
            m_dismissed.insert(record->file, stateOf(record->file).digest());
    }
}
