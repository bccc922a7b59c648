#pragma once

#include <QTest>
#include <QtGui>

#include <algorithm>
#include <functional>
#include <utility>

/// What tests of the model share: files, pictures of palette indices, and the order of signals.

[[nodiscard]] inline bool writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// A folder of its own: path() is the folder, path("x") a file in it, path("x", bytes) a file of these bytes.
class TemporaryFolder
{
public:
    QString operator()() const { return m_folder.path(); }
    QString operator()(const QString &name) const { return m_folder.filePath(name); }
    QString operator()(const QString &name, const QByteArray &bytes) const
    {
        if (!writeFile(m_folder.filePath(name), bytes))
            qFatal("cannot write %s", qPrintable(name));
        return m_folder.filePath(name);
    }

private:
    QTemporaryDir m_folder;
};

[[nodiscard]] inline QByteArray readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// The content of a file that was written as text, whose lines end as the system ends them.
[[nodiscard]] inline QByteArray readText(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray("unreadable");
}

/// The names of all that is in a folder, sorted.
[[nodiscard]] inline QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

/// Bytes that deflate cannot make much smaller.
[[nodiscard]] inline QByteArray noise(int size, quint32 seed = 1)
{
    QByteArray bytes(size, '\0');
    QRandomGenerator random(seed);
    std::generate(bytes.begin(), bytes.end(), [&random] { return char(random.bounded(256)); });
    return bytes;
}

/// An indexed picture of one value, in 256 opaque black colours.
[[nodiscard]] inline QImage plainImage(QSize size, int value)
{
    QImage image(size, QImage::Format_Indexed8);
    image.setColorTable(QList<QRgb>(256, qRgb(0, 0, 0)));
    image.fill(uint(value));
    return image;
}

/// A picture whose pixel number i, counted row by row, is pixelAt(i).
template <class PixelAt>
[[nodiscard]] QImage pictureOf(QSize size, QImage::Format format, PixelAt pixelAt)
{
    QImage image = format == QImage::Format_Indexed8 ? plainImage(size, 0) : QImage(size, format);
    for (int i = 0; i < size.width() * size.height(); ++i)
        image.setPixel(i % size.width(), i / size.width(), uint(pixelAt(i)));
    return image;
}

/// The palette indices of a picture, row by row. (QImage itself compares colours.)
[[nodiscard]] inline QByteArray indices(const QImage &image)
{
    QByteArray bytes;
    bytes.reserve(qsizetype(image.width()) * image.height());
    for (int y = 0; y < image.height(); ++y)
        bytes.append(reinterpret_cast<const char *>(image.constScanLine(y)), image.width());
    return bytes;
}

/// A member of every item of a list.
template <class List, class Member>
[[nodiscard]] auto valuesOf(const List &list, Member member)
{
    QList<std::decay_t<std::invoke_result_t<Member, decltype(*list.begin())>>> values;
    for (const auto &item : list)
        values.append(std::invoke(member, item));
    return values;
}

/// Adds the columns of a test's data.
template <class... Types, class... Names>
void addColumns(Names... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/// Writes down signals in the order in which they are emitted, as "name argument argument".
class SignalLog : public QObject
{
public:
    /// Listens to every signal of these objects.
    template <class... Senders>
    explicit SignalLog(const Senders &...senders)
    {
        (follow(senders), ...);
    }

    template <class Sender, class Signal>
    void listen(const Sender &sender, Signal signal, const QString &name)
    {
        attach(sender, QMetaMethod::fromSignal(signal), name);
    }

    /// What was emitted since it was last asked.
    QStringList take() { return std::exchange(m_lines, {}); }

    /// The signals arrive as calls of methods that this class does not declare.
    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id < 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        const auto &[signal, name] = m_signals.at(id);
        QStringList words{name};
        for (int i = 0; i < signal.parameterCount(); ++i)
            words << textOf(QVariant(signal.parameterMetaType(i), arguments[i + 1]));
        m_lines << words.join(u' ');
        return -1;
    }

private:
    void follow(const QObject &sender)
    {
        const QMetaObject *type = sender.metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < type->methodCount(); ++i) {
            const QMetaMethod method = type->method(i);
            if (method.methodType() == QMetaMethod::Signal && !(method.attributes() & QMetaMethod::Cloned))
                attach(sender, method, QString::fromLatin1(method.name()));
        }
    }

    void attach(const QObject &sender, const QMetaMethod &signal, const QString &name)
    {
        const int id = QObject::staticMetaObject.methodCount() + int(m_signals.size());
        QMetaObject::connect(&sender, signal.methodIndex(), this, id, Qt::DirectConnection);
        m_signals.append({signal, name});
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
        // Qt for Windows does not take enumerations without names for numbers
        if (const QMetaType type = value.metaType(); (type.flags() & QMetaType::IsEnumeration) && !type.metaObject())
            return QString::number(*static_cast<const int *>(value.constData()));
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

    QList<std::pair<QMetaMethod, QString>> m_signals;
    QStringList m_lines;
};
