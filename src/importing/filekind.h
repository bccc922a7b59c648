#pragma once

#include "importing/importchoices.h"
#include "importing/incomingassets.h"
#include "model/result.h"
#include "nextdata/option.h"
#include "nextdata/source.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class Project;

namespace Importing {

/// A file that is looked at.
struct ImportFile
{
    QString path;
    qint64 size = 0; ///< of the whole file
    QByteArray bytes{}; ///< without a +3DOS header; the beginning alone of a file that is too large for what is raw
    bool hadHeader = false;

    [[nodiscard]] bool isWhole() const { return hadHeader || bytes.size() == size; }

    /// A failure for what is no file, cannot be read or is empty.
    [[nodiscard]] static Result<ImportFile> open(const QString &path);
};

/// A kind of file, with what is to be chosen about it.
struct FileKind
{
    QString id; ///< for ImportChoices; never changes
    QString title; ///< for people
    NextData::AssetKind asset; ///< the kind of asset that it becomes, or goes into
    QList<NextData::Option> options;
    QStringList rareOptions{}; ///< the ids of those that few files need
    bool takesTarget = false; ///< whether it can go into an asset that is there
    bool needsTarget = false; ///< whether it can go nowhere else
    bool needsTileSet = false; ///< a map whose tiles do not come with it
    bool needsPalette = false; ///< whether it takes the colours of a palette of the project
    bool bringsColours = false; ///< or as well its own
    /// Makes values of a file; null for what is not made here: pictures and sets of files that have their own imports.
    Result<IncomingAssets> (*prepare)(const Project &project, const ImportFile &file, const ImportChoices &choices,
                                      const NextData::OptionValues &options) = nullptr;
};

[[nodiscard]] const QList<FileKind> &fileKinds();

/// The kind of an id; null when there is none.
[[nodiscard]] const FileKind *findFileKind(const QString &id);

/// What a file may be, and the options with which it most probably is.
struct Guess
{
    QString kind;
    QMap<QString, QString> options{};
};

/// What a file may be, the most probable first: by its content where that tells, or else by name and size. There is
/// always one for a file that is not empty.
[[nodiscard]] QList<Guess> recognise(const ImportFile &file);

/// What is made of a file; a failure says why nothing can be made of it.
[[nodiscard]] Result<IncomingAssets> prepare(const Project &project, const ImportFile &file,
                                             const ImportChoices &choices);

} // namespace Importing
