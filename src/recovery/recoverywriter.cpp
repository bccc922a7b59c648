#include "recovery/recoverywriter.h"

#include <QFile>

RecoveryWriter::RecoveryWriter(RecoveryCopy copy)
    : m_folder(std::move(copy.folder()))
    , m_number(copy.number())
    , m_last(copy.manifest().files())
{
    m_last.insert(RecoveryCopy::manifestName(m_number));
    const QStringList files = m_folder.files();
    m_unneeded = QSet<QString>(files.cbegin(), files.cend()).subtract(m_last);
    while (tidy()) { } // a later copy that is damaged must not come before the next one
}

QString RecoveryWriter::put(const QByteArray &bytes)
{
    const QString name = RecoveryManifest::fileNameFor(bytes);
    const bool isThere =
        m_last.contains(name) || m_previous.contains(name) || m_begun.contains(name) || m_unneeded.contains(name);
    m_problem = isThere ? QString() : m_folder.write(name, bytes);
    if (!m_problem.isEmpty())
        return {};
    m_unneeded.remove(name);
    m_begun.insert(name);
    return name;
}

bool RecoveryWriter::finish(const RecoveryManifest &manifest)
{
    const QString name = RecoveryCopy::manifestName(m_number + 1);
    const QString unfinished = name + QStringLiteral(".new");
    m_problem = m_folder.write(unfinished, manifest.toText());
    if (m_problem.isEmpty()) {
        QFile file(m_folder.filePath(unfinished));
        if (!file.rename(m_folder.filePath(name)))
            m_problem = file.errorString();
    }
    if (!m_problem.isEmpty()) {
        m_unneeded.insert(unfinished);
        return false;
    }
    ++m_number;
    QSet<QString> files = manifest.files();
    files.insert(name);
    m_unneeded.unite(m_previous).unite(m_begun);
    m_previous = std::exchange(m_last, files);
    m_unneeded.subtract(m_last).subtract(m_previous);
    m_begun.clear();
    return true;
}

void RecoveryWriter::giveUp()
{
    m_unneeded.unite(m_begun).subtract(m_last).subtract(m_previous);
    m_begun.clear();
}

void RecoveryWriter::giveUpAll()
{
    giveUp();
    m_unneeded.unite(m_last).unite(m_previous);
    m_last.clear();
    m_previous.clear();
    for (const qint64 number : {m_number - 1, m_number}) // a copy that lacks a piece would be a damaged one
        QFile::remove(m_folder.filePath(RecoveryCopy::manifestName(number)));
}

bool RecoveryWriter::tidy()
{
    if (m_unneeded.isEmpty())
        return false;
    QFile::remove(m_folder.filePath(*m_unneeded.cbegin()));
    m_unneeded.erase(m_unneeded.cbegin());
    return true;
}
