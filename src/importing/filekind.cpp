#include "importing/filekind.h"

#include "importing/kinds.h"
#include "importing/texts.h"
#include "model/rawfile.h"
#include "nextdata/reader.h"

#include <QDir>

#include <algorithm>

namespace Importing {
namespace {

/// Files beyond that are read by those who know them, from their beginning alone.
constexpr qint64 MostWhole = qint64(32) << 20;
constexpr qint64 StartBytes = 4096;

} // namespace

Result<ImportFile> ImportFile::open(const QString &path)
{
    QFile file(path);
    const QString shown = QDir::toNativeSeparators(path);
    if (!RawFile::openForReading(file))
        return Failure{
            Texts::tr("%1 cannot be read: %2")
                .arg(shown, file.error() == QFile::NoError ? Texts::tr("it is no file") : file.errorString())};
    ImportFile opened{.path = path, .size = file.size()};
    const QByteArray bytes = file.read(opened.size <= MostWhole ? opened.size : StartBytes);
    if (file.error() != QFile::NoError)
        return Failure{Texts::tr("%1 cannot be read: %2").arg(shown, file.errorString())};
    if (bytes.isEmpty())
        return Failure{Texts::tr("%1 is empty").arg(shown)};
    opened.hadHeader = NextData::hasPlus3DosHeader(bytes);
    opened.bytes = NextData::withoutHeader(bytes);
    return opened;
}

const QList<FileKind> &fileKinds()
{
    static const QList<FileKind> all =
        Kinds::raw() + Kinds::colours() + Kinds::aseprite() + Kinds::tiled() + Kinds::pictures();
    return all;
}

const FileKind *findFileKind(const QString &id)
{
    const QList<FileKind> &all = fileKinds();
    const auto kind = std::find_if(all.cbegin(), all.cend(), [&id](const FileKind &each) { return each.id == id; });
    return kind != all.cend() ? &*kind : nullptr;
}

Result<IncomingAssets> prepare(const Project &project, const ImportFile &file, const ImportChoices &choices)
{
    const FileKind *kind = findFileKind(choices.kind);
    if (!kind || !kind->prepare)
        return Failure{Texts::tr("“%1” is no kind of file that is read here").arg(choices.kind)};
    const Result<NextData::OptionValues> options = NextData::OptionValues::parse(kind->options, choices.options);
    if (!options)
        return options.failure();
    Result<IncomingAssets> incoming = kind->prepare(project, file, choices, *options);
    if (!incoming || !file.hadHeader)
        return incoming;
    IncomingAssets withRemark = *std::move(incoming);
    withRemark.remarks.prepend(Texts::tr("The file has a +3DOS header, which is skipped"));
    return withRemark;
}

} // namespace Importing
