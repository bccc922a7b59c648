#pragma once

#include "app/exportproject/exportquestion.h"
#include "app/filestate.h"
#include "nextdata/recipe.h"

#include <QObject>
#include <QPointer>

#include <functional>

class ExportProjectDialog;
class ExportReport;
class ProjectController;

/// Exports the open project as its recipe says, which lies beside the project's file: with a dialog that shows the
/// recipe, or at once.
class ProjectExport : public QObject
{
    Q_OBJECT

public:
    /// dialogParent is the window over which dialogs and progress are shown.
    ProjectExport(ProjectController *controller, QWidget *dialogParent);

    /// Answers what is asked, in place of a message box.
    void setAnswerCallback(const std::function<bool(const ExportQuestion &)> &ask) { m_ask = ask; }

    [[nodiscard]] ExportProjectDialog *dialog();

public slots:
    /// Shows the recipe.
    void exportProject();
    /// Does the recipe; shows it where there is none.
    void exportAgain();

signals:
    /// What was written, for the status bar.
    void exported(const QString &message);
    /// Something could not be done: a text for the user, its title, and why.
    void failed(const QString &text, const QString &title, const QString &reason);

private:
    /// Whether the project has a file now.
    [[nodiscard]] bool hasFile();
    /// Reads the recipe, where there is one; false when it is damaged and is to stay.
    [[nodiscard]] bool load();
    void showDialog();
    /// A recipe belongs to its project wherever that is saved to.
    void takeRecipeAlong(const QString &previousFile, const QString &file);
    [[nodiscard]] bool save(const NextData::Recipe &recipe);
    void report(const ExportReport &report);

    QPointer<ProjectController> m_controller;
    QPointer<QWidget> m_dialogParent;
    QPointer<ExportProjectDialog> m_dialog;
    std::function<bool(const ExportQuestion &)> m_ask;

    NextData::Recipe m_recipe; ///< that was read
    FileState m_recipeFile; ///< as it was then, or when it was saved
    bool m_isDamaged = false; ///< the file, which is kept aside when another recipe takes its place
};
