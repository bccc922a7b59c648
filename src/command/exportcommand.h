#pragma once

#include "command/request.h"
#include "nextdata/reciperun.h"

#include <functional>

class Project;
class ProjectStore;
class QTextStream;

/// The program quenmora-export, apart from being a process: writes what a project's recipe says, or one asset, or
/// tells what there is.
class ExportCommand
{
public:
    enum ExitCode { Done = 0, Failed = 1, WrongUsage = 2 };

    /// Asked between two outputs: true ends the command, with what was written so far.
    using Interruption = std::function<bool()>;

    ExportCommand(QTextStream &out, QTextStream &errors, Interruption isInterrupted = {});

    /// Does what the words of a command line say, the program's name first.
    [[nodiscard]] int run(const QStringList &arguments);

private:
    [[nodiscard]] int listForms();
    void listOptions(const QList<NextData::Option> &options);
    [[nodiscard]] int withProject();
    /// The files of the project that are there.
    [[nodiscard]] QStringList sources() const;
    [[nodiscard]] int listAssets(const Project &project);
    [[nodiscard]] int doRecipe(const Project &project);
    [[nodiscard]] int doSingle(const Project &project);
    [[nodiscard]] int writeThumbnail(const Project &project);

    /// Says how an output went: its files, which are in a folder, or why it failed, and where it is asked for.
    void report(const NextData::RecipeRun::Outcome &outcome, const QString &folder, const QString &place);
    void sum(const QList<NextData::RecipeRun::Outcome> &outcomes);
    [[nodiscard]] bool writeDepfile(const QStringList &targets, const QStringList &prerequisites);
    [[nodiscard]] NextData::RecipeRun::Mode mode() const;
    int fail(const QString &file, const QString &reason);

    QTextStream &m_out;
    QTextStream &m_errors;
    Interruption m_isInterrupted;
    Request m_request;
};
