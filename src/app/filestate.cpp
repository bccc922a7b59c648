#include "app/filestate.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

FileState::FileState(const QString &fileName) : m_fileName(fileName), m_stamp(stampOf(fileName))
{
    QFile file(fileName);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) // a pipe would keep us waiting
        return;
    QCryptographicHash hash(QCryptographicHash::Sha1);
    if (hash.addData(&file))
        m_hash = hash.result();
}

FileState::Stamp FileState::stampOf(const QString &fileName)
{
    const QFileInfo file(fileName);
    if (!file.exists())
        return {};
    return {file.size(), file.lastModified(), file.metadataChangeTime()};
}

bool FileState::hasContentOf(const FileState &other) const
{
    return exists() == other.exists() && m_hash == other.m_hash;
}
