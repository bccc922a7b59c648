#include "pictures/foreignfile.h"

#include "model/plural.h"
#include "model/rawfile.h"

QString ForeignFile::sizeText(qint64 bytes)
{
    constexpr qint64 Mebibyte = 1 << 20;
    return bytes < Mebibyte ? Texts::tr("%n bytes", nullptr, plural(bytes))
                            : Texts::tr("%1 MiB").arg((bytes + Mebibyte - 1) / Mebibyte);
}

void ForeignFile::Remarks::add(const QString &remark)
{
    constexpr qsizetype Most = 30;
    if (m_texts.size() > Most || m_texts.contains(remark))
        return;
    m_texts.append(m_texts.size() < Most ? remark : Texts::tr("There is more of this kind"));
}

Result<QByteArray> ForeignFile::readAll(const QString &fileName, qint64 maxBytes)
{
    QFile file(fileName);
    if (!RawFile::openForReading(file))
        return Failure{Texts::tr("It is not there, or may not be read")};
    const qint64 size = file.size();
    if (size > maxBytes)
        return Failure{Texts::tr("It has %1; at most %2 can be read").arg(sizeText(size), sizeText(maxBytes))};
    QByteArray bytes = file.read(size); // for which memory is taken at once, and it may grow
    if (file.error() != QFile::NoError)
        return Failure{Texts::tr("It could not be read: %1").arg(file.errorString())};
    return bytes;
}
