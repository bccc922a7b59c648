#pragma once

#include "nextdata/source.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QString>
#include <QUuid>

namespace NextData {

/// One output of a recipe: an asset, in a form, into a file.
struct RecipeOutput
{
    AssetKind kind = AssetKind::Palette;
    QUuid id;
    QString name; ///< of the asset, for people: the id is what counts
    QString form; ///< the form's id
    QMap<QString, QString> options; ///< as OptionValues takes them; those that are missing have their defaults
    QString file; ///< below the project's folder, "/" between folders

    bool operator==(const RecipeOutput &) const = default;
};

/// What a game takes of a project: the outputs that are written together, kept as text beside the project.
///
/// Outputs are sorted by their files, each is one line of the text, and equal recipes are equal texts, so that version
/// control can compare and merge them:
///
///     {
///         "formatVersion": 1,
///         "outputs": [
///             {"kind": "palette", "id": "…", "name": "Level", "form": "palette", "options": {}, "file": "a.pal"},
///             {"kind": "map", "id": "…", "name": "Level", "form": "map-2byte", "options": {"pad": 256}, "file":
///             "level.map"}
///         ]
///     }
class Recipe
{
public:
    static constexpr qint64 MaxBytes = qint64(16) << 20;
    static constexpr qsizetype MaxOutputs = 10'000;

    /// Why a text is no recipe. The line counts from 1; 0 when it is about the whole file.
    struct Problem
    {
        int line = 0;
        QString reason;

        bool operator==(const Problem &) const = default;
    };

    /// The recipe of a project file: "NAME.quenmora-export.json" beside "NAME.quenmora".
    [[nodiscard]] static QString pathFor(const QString &projectFile);

    /// Sorted by file.
    [[nodiscard]] const QList<RecipeOutput> &outputs() const { return m_outputs; }
    void setOutputs(const QList<RecipeOutput> &outputs);
    /// The line on which an output stands in the text that was read; 0 for one that was not.
    [[nodiscard]] int lineOf(const RecipeOutput &output) const { return m_lineOfFile.value(output.file); }

    /// Why an output cannot be in a recipe, whatever the project holds: its form, options or file. Empty when it can.
    [[nodiscard]] static QString problemOf(const RecipeOutput &output);
    /// The same for one of the recipe's, which may also have the file of another one.
    [[nodiscard]] QString problemAt(qsizetype index) const;

    /// Takes over a text. When it is no recipe, all problems with it, in the order of their lines; the recipe is then
    /// as before.
    [[nodiscard]] QList<Problem> parse(const QByteArray &text);
    [[nodiscard]] QByteArray text() const;

    [[nodiscard]] QList<Problem> load(const QString &path);
    /// The reason why not, or empty.
    [[nodiscard]] QString save(const QString &path) const;

    /// Whether the outputs are equal, wherever they were read.
    bool operator==(const Recipe &other) const { return m_outputs == other.m_outputs; }

private:
    QList<RecipeOutput> m_outputs;
    QHash<QString, int> m_lineOfFile;
};

} // namespace NextData
