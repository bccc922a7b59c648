#include "app/exportproject/projectexport.h"

#include "app/exportproject/exportprogress.h"
#include "app/exportproject/exportprojectdialog.h"
#include "app/exportproject/exportreport.h"
#include "app/projectcontroller.h"
#include "ui/plaintext.h"
#include "ui/titlewidth.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <functional>

using NextData::Recipe;
using NextData::RecipeRun;

namespace {

constexpr int MostProblems = 8; // that a message box shows

/// Keeps a file under another name, which no other has; the reason why not, or empty.
QString keepAside(const QString &path)
{
    QString aside = path + QStringLiteral(".bad");
    for (int number = 2; QFileInfo::exists(aside); ++number)
        aside = QStringLiteral("%1.bad%2").arg(path).arg(number);
    QFile file(path);
    return file.rename(aside) ? QString() : file.errorString();
}

QString textOf(const Recipe::Problem &problem)
{
    return problem.line > 0 ? ProjectExport::tr("Line %1: %2").arg(problem.line).arg(problem.reason) : problem.reason;
}

/// A question over a window, with a button that does it, which a warning does not propose, and one that does not.
bool ask(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text, const QString &details,
         const QString &yes)
{
    // not on the stack: it goes with its parent
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, QMessageBox::Cancel, parent);
    box->setDefaultButton(QMessageBox::Cancel);
    QPushButton *button = box->addButton(yes, QMessageBox::AcceptRole);
    if (icon != QMessageBox::Warning)
        box->setDefaultButton(button);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(plainText(details)); // whose format is always guessed
    widenForTitle(*box);
    box->exec();
    const bool accepted = box && box->clickedButton() == button;
    if (box)
        box->deleteLater();
    return accepted;
}

} // namespace

ProjectExport::ProjectExport(ProjectController *controller, QWidget *dialogParent)
    : QObject(dialogParent)
    , m_controller(controller)
    , m_dialogParent(dialogParent)
    , m_mayBeSaved([this] { return askToSave(); })
    , m_startsAnew([this](const QString &path, const Problems &problems) { return askToStartAnew(path, problems); })
{
    connect(controller, &ProjectController::projectClosing, this, [this] {
        if (m_dialog)
            m_dialog->reject();
    });
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
    const QString file = m_controller->filePath();
    const QString folder = QFileInfo(file).path();
    RecipeRun run(*m_controller->project(), m_recipe, folder, {file, Recipe::pathFor(file)});
    QList<RecipeRun::Outcome> outcomes;
    {
        ExportProgress progress(m_dialogParent, *m_controller->project(), m_recipe);
        outcomes = run.runAll(RecipeRun::Mode::Write, std::ref(progress));
    }
    report({m_recipe, outcomes, folder});
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
    if (!m_mayBeSaved())
        return false;
    m_controller->save();
    return m_controller->project() && !m_controller->filePath().isEmpty();
}

bool ProjectExport::askToSave() const
{
    return ask(m_dialogParent, QMessageBox::Question, tr("Export Project"), tr("Save the project first?"),
               tr("The files for the game are written beside the project's file, and it has none yet."),
               tr("&Save Project…"));
}

// The recipe

bool ProjectExport::load()
{
    const QString path = Recipe::pathFor(m_controller->filePath());
    m_recipe = {};
    m_isDamaged = false;
    if (!QFileInfo::exists(path))
        return true;
    const Problems problems = m_recipe.load(path);
    m_isDamaged = !problems.isEmpty();
    return !m_isDamaged || m_startsAnew(path, problems);
}

bool ProjectExport::askToStartAnew(const QString &path, const Problems &problems) const
{
    QStringList lines;
    for (const Recipe::Problem &problem : problems.first(std::min<qsizetype>(problems.size(), MostProblems)))
        lines.append(textOf(problem));
    if (problems.size() > MostProblems)
        lines.append(tr("… and %1 more").arg(problems.size() - MostProblems));
    lines.append({QString(),
                  tr("Mend the file, or start with an empty recipe: the file is then kept as %1.")
                      .arg(QFileInfo(path).fileName() + QStringLiteral(".bad"))});
    return ask(m_dialogParent, QMessageBox::Warning, tr("Export Project"),
               tr("The recipe of this project cannot be used:\n%1").arg(QDir::toNativeSeparators(path)),
               lines.join(u'\n'), tr("&Start Anew"));
}

bool ProjectExport::save(const Recipe &recipe)
{
    const QString path = Recipe::pathFor(m_controller->filePath());
    QString problem = m_isDamaged && QFileInfo::exists(path) ? keepAside(path) : QString();
    if (problem.isEmpty())
        problem = recipe.save(path);
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
