#include "nextdata/output.h"

#include "nextdata/filenames.h"
#include "nextdata/names.h"
#include "nextdata/sourcetext.h"
#include "nextdata/texts.h"

#include <limits>
#include <optional>

namespace NextData {
namespace {

using Blocks = QList<Data::Block>;
using SourceText::Dialect;

const QString HeaderGuard = QString::fromLatin1(SourceText::HeaderGuard);

std::optional<Dialect> dialectOf(const OptionValues &values)
{
    if (values.is("text", "sjasmplus"))
        return Dialect::Sjasmplus;
    if (values.is("text", "z80asm"))
        return Dialect::Z80asm;
    if (values.is("text", "gas"))
        return Dialect::GnuAs;
    if (values.is("text", "c"))
        return Dialect::C;
    return std::nullopt;
}

/// The most bytes in a file.
qint64 fileSize(const OptionValues &values)
{
    if (values.is("cut", "8k"))
        return 8192;
    return values.is("cut", "16k") ? 16384 : std::numeric_limits<qint64>::max();
}

qint64 padded(qint64 size, const OptionValues &values)
{
    const qint64 multiple = values.number("pad");
    return multiple > 1 ? (size + multiple - 1) / multiple * multiple : size;
}

qint64 sizeOf(const Blocks &blocks)
{
    qint64 size = 0;
    for (const Data::Block &block : blocks)
        size += block.bytes.size();
    return size;
}

/// The blocks of each file: a new one begins where a block wants it, and where the last one is full.
QList<Blocks> filesOf(const Blocks &blocks, qint64 most)
{
    QList<Blocks> files;
    qint64 room = 0;
    for (const Data::Block &block : blocks) {
        if (block.startsFile)
            room = 0;
        for (qsizetype at = 0; at < block.bytes.size();) {
            if (room == 0) {
                files.append(Blocks());
                room = most;
            }
            Data::Block part = block;
            part.bytes = block.bytes.mid(at, qsizetype(room));
            if (at > 0) {
                part.name.clear();
                part.comment.clear();
            }
            at += part.bytes.size();
            room -= part.bytes.size();
            files.last().append(part);
        }
    }
    return files;
}

QByteArray joined(const Blocks &blocks)
{
    if (blocks.size() == 1)
        return blocks.first().bytes;
    QByteArray bytes;
    bytes.reserve(sizeOf(blocks));
    for (const Data::Block &block : blocks)
        bytes += block.bytes;
    return bytes;
}

/// What is added to the name of each file: nothing to that of the only one, unless more may come when the asset grows.
QStringList partNames(const QList<Blocks> &files, const OptionValues &values)
{
    if (files.size() == 1 && values.is("cut", "none") && !files.first().first().startsFile)
        return {QString()};
    QStringList names;
    for (qsizetype i = 0; i < files.size(); ++i)
        names.append(u'_' + QString::number(i));
    return names;
}

/// Makes the names of blocks parts of labels, each another one, and defines their numbers.
void nameBlocks(Data &data)
{
    Names names;
    (void)names.claimPart(HeaderGuard, {});
    for (const Data::Constant &constant : std::as_const(data.constants))
        (void)names.claimPart(constant.name, constant.name);
    const QString number = QStringLiteral("number");
    for (Data::Block &block : data.blocks) {
        if (block.name.isEmpty())
            continue;
        block.name = names.claimPart(block.name, QStringLiteral("part"), {number});
        if (block.number >= 0)
            data.constants.append({block.name + u'_' + number, block.number});
    }
}

/// All that is behind "LABEL_" in a name of the output.
QStringList suffixesOf(const Data &data, const QStringList &parts)
{
    QStringList suffixes{HeaderGuard};
    for (const Data::Constant &constant : data.constants)
        suffixes.append(constant.name);
    for (const Data::Block &block : data.blocks) {
        if (!block.name.isEmpty())
            suffixes.append(block.name);
    }
    for (const QString &part : parts) {
        if (!part.isEmpty())
            suffixes.append(part.mid(1));
    }
    return suffixes;
}

Result<QString> claimLabel(const Form &form, const Source &source, const OptionValues &values,
                           const QStringList &suffixes, Names &names)
{
    const QString chosen = values.text("label");
    if (!chosen.isEmpty())
        return names.claimExactly(chosen, suffixes);
    const bool isNamed = asWord(source.name()).endsWith(form.noun); // as a palette "Title palette" is
    const QString name = isNamed ? source.name() : source.name() + u' ' + form.noun;
    return names.claim(name, wordOf(source.kind()), suffixes);
}

/// The files as source text, named after the output's file.
Result<QList<OutputFile>> asText(Dialect dialect, const SourceText::Heading &heading, const QList<Blocks> &files,
                                 const QStringList &parts, const QString &fileName)
{
    QList<SourceText::Section> sections;
    for (qsizetype i = 0; i < files.size(); ++i)
        sections.append({heading.label + parts[i], files[i]});

    QList<OutputFile> output;
    const QString headerName = FileNames::withSuffix(fileName, QStringLiteral("h"));
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QByteArray text = dialect == Dialect::C ? SourceText::cSource(heading, sections[i], headerName)
                                                      : SourceText::assembler(dialect, heading, sections[i], i == 0);
        output.append({FileNames::withPart(fileName, parts[i]), text});
    }
    if (dialect != Dialect::C)
        return output;
    if (headerName.compare(fileName, Qt::CaseInsensitive) == 0)
        return Failure{
            Texts::tr("“%1” would be C source and its header: another suffix is needed, as .c").arg(fileName)};
    output.append({headerName, SourceText::cHeader(heading, sections)});
    return output;
}

/// The bytes of an output, cut into those of its files.
struct Parts
{
    Data data;
    QList<Blocks> files;
    QStringList names; ///< what each file's name has more than the output's
};

Result<Parts> partsOf(const Form &form, const Source &source, const OptionValues &values)
{
    if (const QString refusal = refusalOf(form, source); !refusal.isEmpty())
        return Failure{refusal};
    Result<Data> written = form.write(source, values);
    if (!written)
        return written.failure();
    Data data = *std::move(written);
    const qint64 size = sizeOf(data.blocks);
    if (size == 0)
        return Failure{Texts::tr("“%1” has nothing to write in this form").arg(source.name())};
    if (const qint64 padding = padded(size, values) - size; padding > 0)
        data.blocks.append({.bytes = QByteArray(padding, '\0'), .comment = Texts::tr("padding")});
    data.constants.append({QStringLiteral("size"), size});
    nameBlocks(data);
    const QList<Blocks> files = filesOf(data.blocks, fileSize(values));
    return Parts{data, files, partNames(files, values)};
}

} // namespace

QList<Option> commonOptions()
{
    return {
        Option::choice(QStringLiteral("text"), Texts::tr("Source text"),
                       Texts::tr("Bytes for incbin, or source text in the words of an assembler or of C"),
                       {{QStringLiteral("none"), Texts::tr("No, bytes")},
                        {QStringLiteral("sjasmplus"), Texts::tr("sjasmplus, Zeus: db $12")},
                        {QStringLiteral("z80asm"), Texts::tr("z80asm, z88dk: defb $12")},
                        {QStringLiteral("gas"), Texts::tr("GNU as: .byte 0x12")},
                        {QStringLiteral("c"), Texts::tr("C: an array and its header")}}),
        Option::text(QStringLiteral("label"), Texts::tr("Label"),
                     Texts::tr("The label of the bytes in source text; made from the asset's name when there is none")),
        Option::number(QStringLiteral("pad"), Texts::tr("Pad to a multiple of"),
                       Texts::tr("Adds zeros until the size is a multiple of so many bytes; 0 adds none"), 0, 65536, 0),
        Option::choice(QStringLiteral("cut"), Texts::tr("Cut into files"),
                       Texts::tr("Numbered files that each fit into a page of 8 KiB or a bank of 16 KiB"),
                       {{QStringLiteral("none"), Texts::tr("No, one file")},
                        {QStringLiteral("8k"), Texts::tr("8 KiB each")},
                        {QStringLiteral("16k"), Texts::tr("16 KiB each")}}),
    };
}

QString usualSuffix(const Form &form, const OptionValues &values)
{
    const auto dialect = dialectOf(values);
    if (!dialect)
        return form.suffix;
    if (*dialect == Dialect::C)
        return QStringLiteral("c");
    return *dialect == Dialect::GnuAs ? QStringLiteral("s") : QStringLiteral("asm");
}

Result<qint64> sizeOf(const Form &form, const Source &source, const OptionValues &values)
{
    if (const QString refusal = refusalOf(form, source); !refusal.isEmpty())
        return Failure{refusal};
    const Result<qint64> size = form.size(source, values);
    return size ? padded(*size, values) : size;
}

void claimNames(const Form &form, const Source &source, const OptionValues &values, Names &names)
{
    if (!dialectOf(values))
        return;
    if (const Result<Parts> parts = partsOf(form, source, values))
        static_cast<void>(claimLabel(form, source, values, suffixesOf(parts->data, parts->names), names));
}

Result<QList<OutputFile>> write(const Form &form, const Source &source, const OptionValues &values,
                                const QString &fileName, Names &names)
{
    if (const QString problem = FileNames::problemOf(fileName); !problem.isEmpty() || fileName.contains(u'/'))
        return Failure{problem.isEmpty() ? Texts::tr("“%1” is no plain file name").arg(fileName) : problem};
    const Result<Parts> parts = partsOf(form, source, values);
    if (!parts)
        return parts.failure();
    if (const auto dialect = dialectOf(values)) {
        const QStringList suffixes = suffixesOf(parts->data, parts->names);
        const Result<QString> label = claimLabel(form, source, values, suffixes, names);
        if (!label)
            return label.failure();
        return asText(*dialect, {Texts::tr("%1: %2").arg(source.name(), form.title), *label, parts->data.constants},
                      parts->files, parts->names, fileName);
    }
    QList<OutputFile> output;
    for (qsizetype i = 0; i < parts->files.size(); ++i)
        output.append({FileNames::withPart(fileName, parts->names[i]), joined(parts->files[i])});
    return output;
}

} // namespace NextData
