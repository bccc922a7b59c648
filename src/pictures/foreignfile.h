#pragma once

#include "model/result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// Files that other programs wrote.
namespace ForeignFile {

/// The texts about them, by the one name under which they are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ForeignFile)
};

/// A number of bytes as people read it, in MiB where it is that large.
[[nodiscard]] QString sizeText(qint64 bytes);

/// What does not come in as it is: sentences for people, each once, and no more than they would read.
class Remarks
{
public:
    void add(const QString &remark);
    [[nodiscard]] QStringList texts() const { return m_texts; }

private:
    QStringList m_texts;
};

/// All of a regular file that has no more bytes than that.
[[nodiscard]] Result<QByteArray> readAll(const QString &fileName, qint64 maxBytes);

} // namespace ForeignFile
