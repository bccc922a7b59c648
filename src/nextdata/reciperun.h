#pragma once

#include "nextdata/names.h"
#include "nextdata/output.h"
#include "nextdata/recipe.h"
#include "nextdata/targetfolder.h"

#include <QHash>
#include <QStringList>

#include <functional>

class Project;

namespace NextData {

/// Does what a recipe says, or looks what that would change.
///
/// The files of an output are the same whoever runs it, in whatever order, alone or with all others: labels in source
/// text are given out in the order of the recipe. It is made for the moment and notices no change of the project.
class RecipeRun
{
public:
    enum class State { New, Changed, Unchanged, Impossible };
    enum class Mode { Look, Write };

    struct File
    {
        QString name; ///< below the folder
        State state;
        qint64 bytes;
    };

    struct Outcome
    {
        State state = State::Unchanged; ///< of all files together
        QString reason{}; ///< why it is impossible
        QList<File> files{}; ///< in order; of an impossible output those that were written before it failed
    };

    /// Told how many outputs are done, of how many; false stops the run before the next one.
    using Progress = std::function<bool(int done, int count)>;

    /// The folder is the project's, or another one that takes its place. No output may take the place of the kept
    /// files: the project and the recipe.
    RecipeRun(const Project &project, const Recipe &recipe, const QString &folder, const QStringList &keptFiles);

    /// The files of one output, under names below the folder.
    [[nodiscard]] Result<QList<OutputFile>> make(qsizetype index);

    /// Makes the files of one output and compares them with those that are there; with Write, those that differ are
    /// replaced. An output that shares a file with one that was run before is impossible.
    [[nodiscard]] Outcome run(qsizetype index, Mode mode);

    /// Runs one output after the other. There are fewer outcomes than outputs when progress stopped it.
    [[nodiscard]] QList<Outcome> runAll(Mode mode, const Progress &progress = {});

private:
    /// An output whose words have been understood.
    struct Task
    {
        const Form *form;
        Source source;
        OptionValues values;
    };

    [[nodiscard]] Result<Task> taskOf(const RecipeOutput &output) const;
    [[nodiscard]] Result<Source> sourceOf(const RecipeOutput &output) const;
    void claimNamesBefore(qsizetype index);
    [[nodiscard]] QString claim(const QString &place, qsizetype index);

    QList<RecipeOutput> m_outputs;
    QList<Source> m_sources; ///< all of the project
    QHash<QUuid, qsizetype> m_sourceOfId;
    TargetFolder m_folder;
    Names m_names; ///< of the first outputs
    qsizetype m_named = 0; ///< how many outputs these are
    QHash<QString, qsizetype> m_places; ///< in one case, and the output whose they are; −1 for the files that are kept
};

/// Does one output that no recipe has: an asset in a form into a file, wherever that is.
[[nodiscard]] RecipeRun::Outcome runSingle(const Source &source, const Form &form, const OptionValues &values,
                                           const QString &path, RecipeRun::Mode mode);

} // namespace NextData
