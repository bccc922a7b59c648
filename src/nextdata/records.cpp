#include "nextdata/records.h"

#include "nextdata/texts.h"

namespace NextData {

void Records::begin(const QString &record)
{
    m_record = record;
    m_bytes.clear();
}

void Records::addByte(const QString &field, qint64 value)
{
    add(field, value, 0, 0xFF, 1);
}

void Records::addWord(const QString &field, qint64 value)
{
    add(field, value, 0, 0xFFFF, 2);
}

void Records::addSignedWord(const QString &field, qint64 value)
{
    add(field, value, -0x8000, 0x7FFF, 2);
}

void Records::add(const QString &field, qint64 value, qint64 least, qint64 most, int bytes)
{
    if ((value < least || value > most) && !m_failure) {
        m_failure = Failure{
            Texts::tr("“%1”, %2: %3 is %4, and %5 to %6 fit")
                .arg(m_owner, m_record, field, QString::number(value), QString::number(least), QString::number(most))};
    }
    for (int byte = 0; byte < bytes; ++byte)
        m_bytes += char(value >> 8 * byte);
}

} // namespace NextData
