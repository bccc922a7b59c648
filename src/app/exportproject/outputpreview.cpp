#include "app/exportproject/outputpreview.h"

#include "model/plural.h"

#include <QFontDatabase>

#include <algorithm>

namespace {

constexpr int BytesInLine = 16;
constexpr int MostLines = 64; ///< of a file
constexpr int MostFiles = 16;
constexpr int LongestLine = 400;

QString dump(const QByteArray &bytes)
{
    QStringList lines;
    const qsizetype shown = std::min<qsizetype>(bytes.size(), MostLines * BytesInLine);
    for (qsizetype at = 0; at < shown; at += BytesInLine) {
        QByteArray line = bytes.mid(at, BytesInLine).toHex(' ');
        if (line.size() > BytesInLine / 2 * 3)
            line.insert(BytesInLine / 2 * 3, ' ');
        lines.append(QStringLiteral("%1  %2").arg(at, 4, 16, QLatin1Char('0')).arg(QLatin1String(line)).toUpper());
    }
    if (bytes.size() > shown)
        lines.append(QStringLiteral("…"));
    return lines.join(u'\n');
}

QString beginning(const QByteArray &text)
{
    QStringList lines;
    qsizetype at = 0;
    while (at < text.size() && lines.size() < MostLines) {
        const qsizetype end = text.indexOf('\n', at);
        const qsizetype length = (end < 0 ? text.size() : end) - at;
        lines.append(QString::fromUtf8(text.mid(at, std::min<qsizetype>(length, LongestLine))));
        at += length + 1;
    }
    if (at < text.size())
        lines.append(QStringLiteral("…"));
    return lines.join(u'\n');
}

} // namespace

OutputPreview::OutputPreview(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setLineWrapMode(NoWrap);
    setTabChangesFocus(true);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setAccessibleName(tr("Preview"));
}

void OutputPreview::showFiles(const QList<NextData::OutputFile> &files, bool areText)
{
    setPlainText(textOf(files, areText));
}

QString OutputPreview::textOf(const QList<NextData::OutputFile> &files, bool areText)
{
    QStringList parts;
    for (const NextData::OutputFile &file : files.first(std::min<qsizetype>(files.size(), MostFiles))) {
        const QString content = areText ? beginning(file.bytes) : dump(file.bytes);
        const QString head = tr("%1 (%Ln bytes)", nullptr, plural(file.bytes.size())).arg(file.name);
        parts.append(files.size() == 1 ? content : head + u'\n' + content);
    }
    return parts.join(QStringLiteral("\n\n"));
}
