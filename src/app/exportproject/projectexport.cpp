#include "app/exportproject/projectexport.h"

#include "app/exportproject/exportprogress.h"
#include "app/exportproject/exportprojectdialog.h"
#include "app/exportproject/exportreport.h"
#include "app/exportproject/recipetable.h"
#include "app/projectcontroller.h"
#include "model/plural.h"
#include "model/sidefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <functional>

using NextData::Recipe;
using NextData::RecipeRun;

namespace {

constexpr int MostProblems = 8; // that a message box shows

QString textOf(const QList<Recipe::Problem> &problems)
{
    QStringList lines;
    for (const auto &[line, reason] : problems.first(std::min<qsizetype>(problems.size(), MostProblems)))
        lines.append(line > 0 ? ProjectExport::tr("Line %1: %2").arg(QString::number(line), reason) : reason);
    if (problems.size() > MostProblems)
        lines.append(ProjectExport::tr("… and %n more", nullptr, plural(problems.size() - MostProblems)));
    return lines.join(u'\n');
}

} // namespace

ProjectExport::ProjectExport(ProjectController *controller, QWidget *dialogParent)
    : QObject(dialogParent)
    , m_controller(controller)
    , m_dialogParent(dialogParent)
    , m_ask([this](const ExportQuestion &question) { return askAboutExport(m_dialogParent, question); })
{
    connect(controller, &ProjectController::savedAs, this, &ProjectExport::takeRecipeAlong);
    connect(controller, &ProjectController::projectClosing, this, [this] {
        if (m_dialog)
            m_dialog->reject();
    });
}

void ProjectExport::takeRecipeAlong(const QString &previousFile, const QString &file)
{
    const QString recipe = Recipe::pathFor(previousFile);
    const QString copy = Recipe::pathFor(file);
    if (!QFileInfo::exists(recipe) || QFileInfo::exists(copy)) // one that is there belongs to the replaced project
        return;
    QFile original(recipe);
    if (!original.copy(copy))
        emit failed(tr("The recipe could not be saved"), tr("Save Error"),
                    QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(copy), original.errorString()));
}

ExportProjectDialog *ProjectExport::dialog()
{
    if (!m_dialog) {
        m_dialog = new ExportProjectDialog(m_dialogParent);
        m_dialog->setSaveCallback([this](const Recipe &recipe) { return save(recipe); });
        connect(m_dialog, &ExportProjectDialog::exported, this, &ProjectExport::report);
    }
    return m_dialog;
}

void ProjectExport::exportProject()
{
    if (hasFile() && load())
        showDialog();
}

void ProjectExport::exportAgain()
{
    if (!hasFile() || !load())
        return;
    if (m_recipe.outputs().isEmpty())
        return showDialog();
    const Project &project = *m_controller->project();
    QList<RecipeRun::Outcome> outcomes;
    {
        ExportProgress progress(m_dialogParent, project, m_recipe);
        RecipeRun run = RecipeTable::runOf(project, m_controller->filePath(), m_recipe);
        outcomes = run.runAll(RecipeRun::Mode::Write, std::ref(progress));
    }
    report({m_recipe, outcomes, QFileInfo(m_controller->filePath()).path()});
}

void ProjectExport::showDialog()
{
    dialog()->show(*m_controller->project(), m_controller->filePath(), m_recipe, m_isDamaged);
}

// The project's file

bool ProjectExport::hasFile()
{
    if (!m_controller || !m_controller->project())
        return false;
    if (!m_controller->filePath().isEmpty())
        return true;
    if (!m_ask({ExportQuestion::Kind::SaveProject}))
        return false;
    m_controller->save();
    return m_controller->project() && !m_controller->filePath().isEmpty();
}

// The recipe

bool ProjectExport::load()
{
    const QString path = Recipe::pathFor(m_controller->filePath());
    m_recipe = {};
    // before it is read: what happens to it meanwhile is noticed then; what is too large for a recipe is not read at
    // all
    m_recipeFile = QFileInfo(path).size() <= Recipe::MaxBytes ? FileState(path) : FileState();
    m_isDamaged = false;
    if (!QFileInfo::exists(path))
        return true;
    const QList<Recipe::Problem> problems = m_recipe.load(path);
    m_isDamaged = !problems.isEmpty();
    return !m_isDamaged || m_ask({ExportQuestion::Kind::StartAnew, path, textOf(problems)});
}

bool ProjectExport::save(const Recipe &recipe)
{
    const QString path = Recipe::pathFor(m_controller->filePath());
    if (!m_isDamaged && !FileState(path).hasContentOf(m_recipeFile)
        && !m_ask({ExportQuestion::Kind::ReplaceRecipe, path}))
        return false;
    QString problem = m_isDamaged && QFileInfo::exists(path) ? SideFile::keepAside(path) : QString();
    if (problem.isEmpty())
        problem = recipe.save(path);
    m_recipeFile = FileState(path);
    if (!problem.isEmpty()) {
        emit failed(tr("The recipe could not be saved"), tr("Save Error"), problem);
        return false;
    }
    m_isDamaged = false;
    return true;
}

void ProjectExport::report(const ExportReport &report)
{
    emit exported(report.text());
    if (const QString failures = report.failures(); !failures.isEmpty())
        emit failed(tr("There was a problem exporting data"), tr("Save Error"), failures);
}
