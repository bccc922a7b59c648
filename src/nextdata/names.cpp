#include "nextdata/names.h"

#include "nextdata/texts.h"

#include <algorithm>

namespace NextData {
namespace {

constexpr qsizetype LongestWord = 40; ///< two of them are below the 127 characters that assemblers tell apart
constexpr qsizetype LongestLabel = 56; ///< of those that people choose

/// Words that mean something to one of the assemblers or to C, in lower case.
const QSet<QString> &reservedWords()
{
    static const QSet<QString> words = [] {
        const auto lists = {
            // registers and conditions of the Z80
            "a b c d e f h l i r af bc de hl ix iy sp pc ixh ixl iyh iyl hx lx hy ly xh xl yh yl nz z nc po pe p m ns",
            // instructions, those of the Next included
            "adc add and bit brlc bsla bsra bsrf bsrl call ccf cp cpd cpdr cpi cpir cpl daa dec di djnz ei ex exx halt "
            "im in inc ind indr ini inir jp jr ld ldd lddr lddrx lddx ldi ldir ldirx ldix ldpirx ldrx ldws mirror mul "
            "neg nextreg nop or otdr otib otir out outd outi outinb pixelad pixeldn pop push res ret reti retn rl rla "
            "rlc rlca rld rr rra rrc rrca rrd rst sbc scf set setae sla sli sll slr sra srl stop sub swap swapnib test "
            "tst xor",
            // directives and operators
            "abs abyte abytec abytez align assert assume binary block byte dc db dd defarray defb defc defd defdevice "
            "defg defgroup defh define defl defm defp defs defvars defw dephase device dg dh disp display dl dm ds dup "
            "dw dword dz edup else elseif encoding end endif endlua endm endmod endmodule ends endt endw ent eq equ "
            "even exitm export extern fpos ge global gt hex high if ifdef ifndef incbin inchob include inctrd insert "
            "le lib line low lt lua macro mmu mod module ne not opt org outend output page phase public rept "
            "repeat savebin savenex savesna section shl shr size sizeof slot struct tapend tapout textarea undefine "
            "unphase until weaklabel while word xdef xref",
            // C and C++, with what z88dk adds
            "alignas alignof auto bool case char complex constexpr continue default do double enum extern false far "
            "float for fortran goto imaginary inline int interrupt long main near new naked noreturn nullptr register "
            "restrict return sfr short signed sizeof static switch true typedef typeof union unsigned using void "
            "volatile asm class delete friend namespace operator private protected template this throw try virtual "
            "catch at banked critical nonbanked reentrant shadowregs wparam",
            // its library, functions of which compilers know by themselves
            "abort abs acos alloca asin atan atexit atof atoi atol bcmp bcopy bsearch bzero calloc ceil clearerr clock "
            "close cos cosh creat ctime difftime div errno exit exp fabs fclose feof ferror fflush fgetc fgetpos fgets "
            "floor fmod fopen fprintf fputc fputs fread free freopen frexp fscanf fseek fsetpos ftell fwrite getc "
            "getchar getenv gets gmtime index isalnum isalpha iscntrl isdigit isgraph islower isprint ispunct isspace "
            "isupper isxdigit itoa labs ldexp ldiv localtime log longjmp lseek malloc memchr memcmp memcpy memmove "
            "memset mktime modf open perror pow printf putc putchar puts qsort raise rand read realloc remove rename "
            "rewind rindex round scanf setbuf setjmp setvbuf signal sin sinh sleep sprintf sqrt srand sscanf stderr "
            "stdin stdout strcat strchr strcmp strcpy strlen strncat strncmp strncpy strstr strtok system tan tanh "
            "time tolower toupper trunc ungetc unlink vprintf write",
        };
        QSet<QString> all;
        for (const char *list : lists) {
            const QStringList split = QString::fromLatin1(list).split(u' ');
            all.unite(QSet<QString>(split.cbegin(), split.cend()));
        }
        return all;
    }();
    return words;
}

bool isAsciiLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// A word that begins with a letter.
QString labelWord(const QString &name, const QString &fallback)
{
    const QString word = asWord(name);
    if (word.isEmpty())
        return fallback;
    return isAsciiLetter(word.front()) ? word : fallback + u'_' + word;
}

} // namespace

QString asWord(const QString &name)
{
    // far more than fits, and little enough for a name of any length
    QString letters = name.left(16 * LongestWord).toLower();
    letters.replace(QChar(0xDF), QStringLiteral("ss")); // the one letter of Latin 1 that is no letter with an accent
    letters = letters.normalized(QString::NormalizationForm_KD);
    QString word;
    for (const QChar c : std::as_const(letters)) {
        if (c.isMark())
            continue;
        if (isAsciiLetter(c) || isAsciiDigit(c))
            word += c;
        else if (!word.isEmpty() && !word.endsWith(u'_'))
            word += u'_';
        if (word.size() == LongestWord)
            break;
    }
    if (word.endsWith(u'_'))
        word.chop(1);
    return word;
}

QString Names::claim(const QString &name, const QString &fallback, const QStringList &suffixes)
{
    const QString word = labelWord(name, fallback);
    return claimNumbered(reservedWords().contains(word) ? word + QStringLiteral("_data") : word, suffixes);
}

QString Names::claimPart(const QString &name, const QString &fallback, const QStringList &suffixes)
{
    return claimNumbered(labelWord(name, fallback), suffixes);
}

QString Names::claimNumbered(const QString &word, const QStringList &suffixes)
{
    int &number = m_lastNumber[word]; // 0 for a new word
    QString label;
    do {
        ++number;
        label = number == 1 ? word : word + u'_' + QString::number(number);
    } while (!areFree(label, suffixes));
    take(label, suffixes);
    return label;
}

Result<QString> Names::claimExactly(const QString &label, const QStringList &suffixes)
{
    const bool isWord = !label.isEmpty() && isAsciiLetter(label.front())
        && std::all_of(label.cbegin(), label.cend(),
                       [](QChar c) { return isAsciiLetter(c) || isAsciiDigit(c) || c == u'_'; });
    if (!isWord || label.size() > LongestLabel)
        return Failure{Texts::tr("“%1” cannot be a label: those are a letter, then letters, digits and _, %2 at most")
                           .arg(label.left(LongestLabel))
                           .arg(LongestLabel)};
    if (reservedWords().contains(label.toLower()))
        return Failure{Texts::tr("“%1” cannot be a label: assemblers or C give it a meaning").arg(label)};
    if (!areFree(label, suffixes))
        return Failure{Texts::tr("The label “%1”, or a name made of it, is that of another output already").arg(label)};
    take(label, suffixes);
    return label;
}

bool Names::areFree(const QString &label, const QStringList &suffixes) const
{
    const QString lower = label.toLower();
    return !m_taken.contains(lower) && std::none_of(suffixes.cbegin(), suffixes.cend(), [&](const QString &suffix) {
        return m_taken.contains(lower + u'_' + suffix.toLower());
    });
}

void Names::take(const QString &label, const QStringList &suffixes)
{
    const QString lower = label.toLower();
    m_taken.insert(lower);
    for (const QString &suffix : suffixes)
        m_taken.insert(lower + u'_' + suffix.toLower());
}

} // namespace NextData
