#pragma once

#include <QColor>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QMetaMethod>
#include <QSize>
#include <QStringList>
#include <QTemporaryDir>
#include <QUuid>
#include <QVariant>

#include <utility>

/// What tests of the model share: files, pictures of palette indices, and the order of signals.

/// A folder of its own: path() is the folder, path("x") a file in it, path("x", bytes) a file of these bytes.
class TemporaryFolder
{
public:
    QString operator()() const { return m_folder.path(); }
    QString operator()(const QString &name) const { return m_folder.filePath(name); }
    QString operator()(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        return file.fileName();
    }

private:
    QTemporaryDir m_folder;
};

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

/// Writes down every signal of the objects that it follows, in order, as "name argument argument".
class SignalLog : public QObject
{
public:
    template <class... Senders>
    explicit SignalLog(const Senders &...senders)
    {
        (follow(senders), ...);
    }

    /// What was emitted since it was last asked.
    QStringList take() { return std::exchange(m_lines, {}); }

    /// The signals arrive as calls of methods that this class does not declare.
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        const QMetaMethod &signal = m_signals.at(id);
        QStringList words{QString::fromLatin1(signal.name())};
        for (int i = 0; i < signal.parameterCount(); ++i)
            words << textOf(QVariant(signal.parameterMetaType(i), arguments[i + 1]));
        m_lines << words.join(u' ');
        return -1;
    }

private:
    void follow(const QObject &sender)
    {
        const int ownMethods = QObject::staticMetaObject.methodCount();
        for (int i = ownMethods; i < sender.metaObject()->methodCount(); ++i) {
            const QMetaMethod method = sender.metaObject()->method(i);
            if (method.methodType() != QMetaMethod::Signal || method.attributes() & QMetaMethod::Cloned)
                continue;
            QMetaObject::connect(&sender, i, this, ownMethods + int(m_signals.size()), Qt::DirectConnection);
            m_signals << method;
        }
    }

    static QString textOf(const QVariant &value)
    {
        if (const QObject *object = value.value<QObject *>())
            return QString::fromLatin1(object->metaObject()->className());
        if (value.metaType() == QMetaType::fromType<QHash<QUuid, QString>>()) {
            QStringList names = value.value<QHash<QUuid, QString>>().values();
            names.sort();
            return names.join(u' ');
        }
        switch (value.typeId()) {
        case QMetaType::QColor:
            return value.value<QColor>().name(QColor::HexArgb);
        case QMetaType::QSize:
            return QStringLiteral("%1x%2").arg(value.toSize().width()).arg(value.toSize().height());
        case QMetaType::UShort: // a colour word
            return QStringLiteral("%1").arg(value.toUInt(), 4, 16, QLatin1Char('0'));
        default:
            return value.toString();
        }
    }

    QList<QMetaMethod> m_signals;
    QStringList m_lines;
};
