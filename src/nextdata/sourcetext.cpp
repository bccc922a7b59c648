#include "nextdata/sourcetext.h"

#include <algorithm>
#include <array>

namespace NextData::SourceText {
namespace {

struct Syntax
{
    const char *bytes; ///< starts a line of bytes
    const char *hex; ///< stands before a hexadecimal number
    const char *constant; ///< with name and value
    const char *label;
};

constexpr Syntax syntaxOf(Dialect dialect)
{
    switch (dialect) {
    case Dialect::Z80asm:
        return {"\tdefb ", "$", "%1:\tequ %2\n", "%1:\n"};
    case Dialect::GnuAs:
        return {"\t.byte ", "0x", "\t.equ %1, %2\n", "\t.global %1\n%1:\n"};
    case Dialect::C:
        return {"\t", "0x", "#define %1 %2\n", ""};
    case Dialect::Sjasmplus:
        break;
    }
    return {"\tdb ", "$", "%1:\tequ %2\n", "%1:\n"};
}

QString nameOf(const Heading &heading, const QString &suffix)
{
    return heading.label + u'_' + suffix;
}

QString constantName(const Heading &heading, const QString &suffix)
{
    return nameOf(heading, suffix).toUpper();
}

/// The text as it can stand in a comment of any dialect: on one line, without what would end it or join it to the next.
QString asComment(const QString &text)
{
    QString comment = text.left(200);
    for (QChar &c : comment) {
        if (!c.isPrint() || c == u'\\' || c == u'?' || c == u'*')
            c = u' ';
    }
    return comment.simplified();
}

QByteArray constantsOf(const Heading &heading, const Syntax &syntax)
{
    QString text;
    for (const Data::Constant &constant : heading.constants)
        text += QString::fromLatin1(syntax.constant)
                    .arg(constantName(heading, constant.name), QString::number(constant.value));
    return text.toLatin1();
}

qsizetype sizeOf(const Section &section)
{
    qsizetype size = 0;
    for (const Data::Block &block : section.blocks)
        size += block.bytes.size();
    return size;
}

/// Writes lines of bytes. A text of a large map has a hundred million of them.
class ByteLines
{
public:
    ByteLines(const Syntax &syntax, const char *lineEnd) : m_start(syntax.bytes), m_end(lineEnd)
    {
        for (size_t byte = 0; byte < m_numbers.size(); ++byte)
            m_numbers[byte] = syntax.hex + QByteArray::number(uint(byte), 16).rightJustified(2, '0') + ',';
    }

    /// Makes room for the text of so many bytes.
    void reserve(QByteArray &text, qsizetype bytes) const
    {
        text.reserve(text.size() + bytes * (m_numbers.front().size() + 1));
    }

    void append(QByteArray &text, const Data::Block &block) const
    {
        const qsizetype perLine = std::max(block.bytesPerLine, 1);
        for (qsizetype first = 0; first < block.bytes.size(); first += perLine) {
            const qsizetype end = std::min(first + perLine, block.bytes.size());
            text += m_start;
            for (qsizetype i = first; i < end; ++i)
                text += m_numbers[uchar(block.bytes[i])];
            text.chop(1);
            text += m_end;
        }
    }

private:
    QByteArray m_start;
    QByteArray m_end;
    std::array<QByteArray, 256> m_numbers; ///< in hexadecimal, with the comma behind
};

} // namespace

QByteArray assembler(Dialect dialect, const Heading &heading, const Section &section, bool isFirst)
{
    const Syntax syntax = syntaxOf(dialect);
    const auto label = [&syntax](const QString &name) {
        return QString::fromLatin1(syntax.label).arg(name).toLatin1();
    };
    QByteArray text = "; " + asComment(heading.title).toUtf8() + "\n\n";
    if (isFirst)
        text += constantsOf(heading, syntax) + '\n';
    text += label(section.label);
    const ByteLines lines(syntax, "\n");
    lines.reserve(text, sizeOf(section));
    for (const Data::Block &block : section.blocks) {
        if (!block.comment.isEmpty())
            text += "; " + asComment(block.comment).toUtf8() + '\n';
        if (!block.name.isEmpty())
            text += label(nameOf(heading, block.name));
        lines.append(text, block);
    }
    return text;
}

QByteArray cSource(const Heading &heading, const Section &section, const QString &headerName)
{
    const Syntax syntax = syntaxOf(Dialect::C);
    QByteArray text = "/* " + asComment(heading.title).toUtf8() + " */\n\n";
    text += "#include \"" + headerName.toUtf8() + "\"\n\n";
    text += "const unsigned char " + section.label.toLatin1() + '[' + QByteArray::number(sizeOf(section)) + "] = {\n";
    const ByteLines lines(syntax, ",\n");
    lines.reserve(text, sizeOf(section));
    for (const Data::Block &block : section.blocks) {
        if (!block.comment.isEmpty())
            text += "\t/* " + asComment(block.comment).toUtf8() + " */\n";
        lines.append(text, block);
    }
    text += "};\n";
    return text;
}

QByteArray cHeader(const Heading &heading, const QList<Section> &sections)
{
    const Syntax syntax = syntaxOf(Dialect::C);
    const QByteArray guard = constantName(heading, QString::fromLatin1(HeaderGuard)).toLatin1();
    QByteArray text = "/* " + asComment(heading.title).toUtf8() + " */\n\n";
    text += "#ifndef " + guard + "\n#define " + guard + "\n\n" + constantsOf(heading, syntax) + '\n';
    for (const Section &section : sections) {
        text += "extern const unsigned char " + section.label.toLatin1() + '[' + QByteArray::number(sizeOf(section))
            + "];\n";
        qsizetype offset = 0;
        for (const Data::Block &block : section.blocks) {
            if (!block.name.isEmpty())
                text += "#define " + nameOf(heading, block.name).toLatin1() + " (" + section.label.toLatin1() + " + "
                    + QByteArray::number(offset) + ")\n";
            offset += block.bytes.size();
        }
    }
    text += "\n#endif\n";
    return text;
}

} // namespace NextData::SourceText
