#pragma once

#include "nextdata/recipe.h"

#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <functional>

class AddOutputsDialog;
class ExportReport;
class OutputDialog;
class OutputPreview;
class Project;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTableView;
class QToolBar;
class RecipeTable;
class SectionHeader;
class SeveralOutputsDialog;

/// Shows what a game takes of a project: the outputs of its recipe in a table, with what exporting them would do. They
/// are added, edited and removed here, and exported.
///
/// The recipe is kept by Save and by Export; closing the dialog leaves it as it was.
class ExportProjectDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ExportProjectDialog(QWidget *parent = nullptr);

    /// Keeps a recipe; false when it could not, which has been told.
    using Save = std::function<bool(const NextData::Recipe &recipe)>;
    void setSaveCallback(const Save &save) { m_save = save; }

    /// Opens the dialog for a project and its recipe. With isNew the recipe is not in its file yet, whatever it holds.
    void show(const Project &project, const QString &projectFile, const NextData::Recipe &recipe, bool isNew);

    [[nodiscard]] RecipeTable *table() const { return m_table; }

public slots:
    void addOutputs();
    /// Asks for all of the selected output, or for what several ones are to have alike.
    void editOutput();
    void duplicateOutputs();
    void removeOutputs();
    /// Keeps the recipe and writes what is new or changed.
    void exportAll();
    void save();
    void done(int result) override;

signals:
    void exported(const ExportReport &report);

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    void buildActions();
    [[nodiscard]] QWidget *buildTable();
    [[nodiscard]] QWidget *buildFirstStep();
    [[nodiscard]] QWidget *buildButtons();
    [[nodiscard]] QList<int> selectedRows() const;
    /// The one of them that is previewed and edited; -1 for none.
    [[nodiscard]] int shownRow() const;
    void select(const QStringList &files);
    void editSeveral();
    void replaceOutput(const NextData::RecipeOutput &output);
    /// Enables what can be done, and says what there is.
    void follow();
    void showSum();
    void showPreview();
    [[nodiscard]] bool saveRecipe();

    Save m_save;
    QPointer<const Project> m_project;
    QString m_projectFile;
    bool m_isNew = false;
    int m_width; ///< for which the table's columns are made
    RecipeTable *m_table;
    QTableView *m_view;
    QStackedWidget *m_pages; ///< the table, or what to begin with
    QPushButton *m_firstStep;
    QToolBar *m_tools;
    QWidget *m_previewPart;
    SectionHeader *m_previewTitle;
    OutputPreview *m_preview;
    QLabel *m_sum;
    QAction *m_add;
    QAction *m_edit;
    QAction *m_duplicate;
    QAction *m_remove;
    QPushButton *m_saveButton;
    QPushButton *m_closeButton;
    QPushButton *m_exportButton;
    QTimer m_previewDelay;
    bool m_awaitsPreview = false; ///< of an output that is not looked at yet
    QString m_result; ///< of exporting what is shown
    QString m_edited; ///< the file of the output that is being edited
    QPointer<AddOutputsDialog> m_addDialog;
    QPointer<OutputDialog> m_outputDialog;
    QPointer<SeveralOutputsDialog> m_severalDialog;
};
