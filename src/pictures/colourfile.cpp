#include "pictures/colourfile.h"

#include "pictures/foreignfile.h"

#include <QtEndian>

#include <algorithm>
#include <cctype>
#include <optional>

using ForeignFile::Texts;

namespace {

constexpr char GimpHead[] = "GIMP Palette";
constexpr char JascHead[] = "JASC-PAL";
constexpr char JascVersion[] = "0100";
constexpr char Utf8Mark[] = "\xef\xbb\xbf";

constexpr qsizetype ActColours = 256;
constexpr qsizetype ActBytes = 3 * ActColours;
constexpr qsizetype ActTailBytes = 4;
constexpr int NoActIndex = 0xFFFF;

/// The lines of a text whatever they end with, without the spaces around them. Lines are counted from 1.
class Lines
{
public:
    explicit Lines(const QByteArray &text) : m_text(text), m_next(text.startsWith(Utf8Mark) ? 3 : 0) { }

    [[nodiscard]] bool atEnd() const { return m_next >= m_text.size(); }
    [[nodiscard]] int number() const { return m_number; }

    QByteArray take()
    {
        const auto isEnd = [](char character) { return character == '\n' || character == '\r'; };
        const qsizetype start = m_next;
        while (m_next < m_text.size() && !isEnd(m_text[m_next]))
            ++m_next;
        const QByteArray line = m_text.sliced(start, m_next - start).trimmed();
        m_next += m_text.sliced(m_next, std::min<qsizetype>(2, m_text.size() - m_next)) == "\r\n" ? 2 : 1;
        ++m_number;
        return line;
    }

    /// The next line with anything on it; empty at the end.
    QByteArray takeFilled()
    {
        QByteArray line;
        while (line.isEmpty() && !atEnd())
            line = take();
        return line;
    }

private:
    const QByteArray &m_text;
    qsizetype m_next;
    int m_number = 0;
};

Failure failureIn(const Lines &lines, const QString &reason)
{
    return Failure{Texts::tr("Line %1: %2").arg(QString::number(lines.number()), reason)};
}

/// A line as a message shows it.
QString shown(const QByteArray &line)
{
    constexpr qsizetype Most = 40;
    const QString text = QString::fromUtf8(line.first(std::min(line.size(), Most)));
    return line.size() > Most ? text + QChar(0x2026) : text;
}

/// The colour in a line of decimal numbers, as many as there are channels, and anything after them.
std::optional<QRgb> decimalColour(const QByteArray &line, qsizetype channels)
{
    const QList<QByteArray> words = QByteArray(line).replace('\t', ' ').simplified().split(' ');
    if (words.size() < channels)
        return {};
    int values[] = {0, 0, 0, 255};
    for (qsizetype i = 0; i < channels; ++i) {
        bool isNumber = false;
        values[i] = words[i].toInt(&isNumber);
        if (!isNumber || values[i] < 0 || values[i] > 255)
            return {};
    }
    return qRgba(values[0], values[1], values[2], values[3]);
}

std::optional<QRgb> hexColour(const QByteArray &line)
{
    constexpr qsizetype Digits = 6;
    const QByteArray digits = line.startsWith('#') ? line.sliced(1) : line;
    const bool areDigits = std::all_of(digits.cbegin(), digits.cend(),
                                       [](char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; });
    if (digits.size() != Digits || !areDigits)
        return {};
    return 0xFF000000 | digits.toUInt(nullptr, 16);
}

Result<ColourFile> withColours(ColourFile file)
{
    if (file.colours.isEmpty())
        return Failure{Texts::tr("It has no colours")};
    return file;
}

Result<ColourFile> readGimp(Lines &lines)
{
    ColourFile file;
    qsizetype channels = 3;
    const auto valueOf = [](const QByteArray &line, const char *key) -> std::optional<QByteArray> {
        if (!line.startsWith(key))
            return {};
        return line.sliced(qsizetype(qstrlen(key))).trimmed();
    };
    while (!lines.atEnd()) {
        const QByteArray line = lines.take();
        if (line.isEmpty() || line.startsWith('#') || valueOf(line, "Columns:"))
            continue;
        if (const auto name = valueOf(line, "Name:")) {
            file.name = QString::fromUtf8(*name);
        } else if (const auto kinds = valueOf(line, "Channels:")) {
            channels = *kinds == "RGBA" ? 4 : 3;
        } else if (const auto colour = decimalColour(line, channels)) {
            file.colours.append(*colour);
        } else {
            return failureIn(
                lines,
                Texts::tr("“%1” is no colour, which is %2 numbers from 0 to 255").arg(shown(line)).arg(channels));
        }
    }
    return withColours(std::move(file));
}

Result<ColourFile> readJasc(Lines &lines)
{
    if (const QByteArray version = lines.takeFilled(); version != JascVersion)
        return failureIn(lines,
                         Texts::tr("“%1” stands where “%2” does").arg(shown(version), QLatin1String(JascVersion)));
    const QByteArray countText = lines.takeFilled();
    bool isNumber = false;
    const int count = countText.toInt(&isNumber);
    if (!isNumber || count < 0)
        return failureIn(lines, Texts::tr("“%1” is no number of colours").arg(shown(countText)));
    ColourFile file;
    for (QByteArray line = lines.takeFilled(); !line.isEmpty(); line = lines.takeFilled()) {
        const auto colour = decimalColour(line, 3);
        if (!colour)
            return failureIn(lines,
                             Texts::tr("“%1” is no colour, which is %2 numbers from 0 to 255").arg(shown(line)).arg(3));
        file.colours.append(*colour);
    }
    if (file.colours.size() != count)
        return Failure{Texts::tr("It says that it has %1 colours, and has %2").arg(count).arg(file.colours.size())};
    return withColours(std::move(file));
}

Result<ColourFile> readHex(const QByteArray &text)
{
    ColourFile file;
    Lines lines(text);
    for (QByteArray line = lines.takeFilled(); !line.isEmpty(); line = lines.takeFilled()) {
        const auto colour = hexColour(line);
        if (!colour)
            return failureIn(lines, Texts::tr("“%1” is no colour of six hexadecimal digits").arg(shown(line)));
        file.colours.append(*colour);
    }
    return withColours(std::move(file));
}

Result<ColourFile> readAct(const QByteArray &bytes)
{
    ColourFile file;
    qsizetype count = ActColours;
    if (bytes.size() > ActBytes) {
        const uchar *tail = reinterpret_cast<const uchar *>(bytes.constData()) + ActBytes;
        if (const int told = qFromBigEndian<quint16>(tail); told > 0)
            count = told;
        if (count > ActColours)
            return Failure{
                Texts::tr("It says that it has %1 colours; there is room for %2").arg(count).arg(ActColours)};
        if (const int index = qFromBigEndian<quint16>(tail + 2); index != NoActIndex) {
            if (index >= count)
                return Failure{Texts::tr("Its transparent index is %1, and it has %2 colours").arg(index).arg(count)};
            file.transparentIndex = index;
        }
    }
    const auto component = [&bytes](qsizetype at) { return int(uchar(bytes[at])); };
    for (qsizetype i = 0; i < count; ++i)
        file.colours.append(qRgb(component(3 * i), component(3 * i + 1), component(3 * i + 2)));
    return file;
}

} // namespace

bool ColourFile::recognises(const QByteArray &start)
{
    Lines lines(start);
    const QByteArray first = lines.takeFilled();
    return first == GimpHead || first == JascHead || hexColour(first).has_value();
}

Result<ColourFile> ColourFile::read(const QString &fileName)
{
    const auto bytes = ForeignFile::readAll(fileName, MaxBytes);
    return bytes ? read(*bytes) : bytes.failure();
}

Result<ColourFile> ColourFile::read(const QByteArray &bytes)
{
    if (bytes.size() > MaxBytes) {
        return Failure{Texts::tr("It has %1; at most %2 can be read")
                           .arg(ForeignFile::sizeText(bytes.size()), ForeignFile::sizeText(MaxBytes))};
    }
    Lines lines(bytes);
    const QByteArray first = lines.takeFilled();
    if (first == GimpHead)
        return readGimp(lines);
    if (first == JascHead)
        return readJasc(lines);
    const bool beginsAsHex = hexColour(first).has_value();
    const bool hasActSize = bytes.size() == ActBytes || bytes.size() == ActBytes + ActTailBytes;
    if (!beginsAsHex && !hasActSize)
        return Failure{Texts::tr("It is no palette of the forms .gpl, .pal (JASC), .hex or .act")};
    // a palette of colours can happen to begin with digits
    if (Result<ColourFile> file = readHex(bytes); beginsAsHex && (file || !hasActSize))
        return file;
    return readAct(bytes);
}
