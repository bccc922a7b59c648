#pragma once

#include "model/result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

/// The numbers of tiles in a layer, or in a part of one: a list of numbers, text of numbers with commas between them,
/// or 32 bits a number, low byte first, packed or not, as base64.
class TiledCells
{
public:
    /// So many are expected.
    TiledCells(qint64 count, const QString &encoding, const QString &compression);

    /// A number of a list, or nothing where no number was.
    void add(std::optional<quint32> gid);
    /// Some of the text.
    void add(QStringView text);

    [[nodiscard]] Result<QList<quint32>> finish();

private:
    enum class Encoding { List, Csv, Base64 };

    void addCsv(QStringView text);
    void endNumber();
    [[nodiscard]] Result<QList<quint32>> unpacked() const;

    qint64 m_count;
    Encoding m_encoding = Encoding::List;
    QString m_compression;
    QString m_problem;
    QList<quint32> m_gids;
    std::optional<quint64> m_number; ///< whose digits come, in text of numbers
    QByteArray m_base64;
};
