#pragma once

#include "nextdata/form.h"

#include <QString>

/// Bytes as source text: a label with "db" lines for the assemblers that games are built with, or an array for C.
///
///     LEVEL_WIDTH:    equ 40              #define LEVEL_WIDTH 40                  (in the header)
///
///     level:                              const unsigned char level[2560] = {
///         db $01,$39,$05,$02                  0x01,0x39,0x05,0x02,
///     ...                                 ...
///                                         };
namespace NextData::SourceText {

enum class Dialect {
    Sjasmplus, ///< db $12; Zeus and most other assemblers read it as well
    Z80asm, ///< defb $12, of z80asm and z88dk
    GnuAs, ///< .byte 0x12
    C, ///< an array, and a header that declares it
};

/// What a C header defines, behind the label, so that it is read once.
inline constexpr char HeaderGuard[] = "included";

/// The bytes of one file.
struct Section
{
    QString label;
    QList<Data::Block> blocks; ///< their names are made of the output's label
};

/// What the texts of one output share.
struct Heading
{
    QString title; ///< of a comment, which may be any text
    QString label;
    QList<Data::Constant> constants;
};

/// Source for the bytes of a file. Assemblers get the heading's constants with the first of an output's files; C has
/// them in its header, whose name it includes.
[[nodiscard]] QByteArray assembler(Dialect dialect, const Heading &heading, const Section &section, bool isFirst);
[[nodiscard]] QByteArray cSource(const Heading &heading, const Section &section, const QString &headerName);

/// The header that declares the arrays of all of an output's files, and the names of their blocks.
[[nodiscard]] QByteArray cHeader(const Heading &heading, const QList<Section> &sections);

} // namespace NextData::SourceText
