#pragma once

#include <QColor>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QStringList>
#include <QUuid>

#include <type_traits>
#include <utility>

/// What tests of the model share: files, pictures of palette indices, and the order of signals.

[[nodiscard]] inline bool writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

[[nodiscard]] inline QByteArray readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// An indexed picture of one value, in 256 opaque black colours.
[[nodiscard]] inline QImage plainImage(QSize size, int value)
{
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable(QList<QRgb>(256, qRgb(0, 0, 0)));
    image.fill(uint(value));
    return image;
}

/// The palette indices of a picture, row by row. (QImage itself compares colours.)
[[nodiscard]] inline QByteArray indices(const QImage &image)
{
    QByteArray bytes;
    for (int y = 0; y < image.height(); ++y)
        bytes.append(reinterpret_cast<const char *>(image.constScanLine(y)), image.width());
    return bytes;
}

/// Writes down signals in the order in which they are emitted, as "name argument argument".
class SignalLog
{
public:
    template <class Sender, class Owner, class... Arguments>
    void listen(Sender &sender, void (Owner::*signal)(Arguments...), const QString &name)
    {
        QObject::connect(&sender, signal, &m_context, [this, name](const std::decay_t<Arguments> &...arguments) {
            m_lines.append((QStringList(name) << ... << textOf(arguments)).join(u' '));
        });
    }

    /// What was emitted since it was last asked.
    QStringList take() { return std::exchange(m_lines, {}); }

private:
    static QStringList sorted(QStringList texts)
    {
        texts.sort();
        return texts;
    }

    template <class Value>
    static QString textOf(const Value &value)
    {
        if constexpr (std::is_same_v<Value, QString>)
            return value;
        else if constexpr (std::is_same_v<Value, QColor>)
            return value.name(QColor::HexArgb);
        else if constexpr (std::is_same_v<Value, QSize>)
            return QStringLiteral("%1x%2").arg(value.width()).arg(value.height());
        else if constexpr (std::is_same_v<Value, quint16>)
            return QStringLiteral("%1").arg(value, 4, 16, QLatin1Char('0'));
        else if constexpr (std::is_same_v<Value, QHash<QUuid, QString>>)
            return sorted(value.values()).join(u' ');
        else if constexpr (std::is_arithmetic_v<Value>)
            return QString::number(value);
        else
            return value->name();
    }

    QStringList m_lines;
    QObject m_context;
};
