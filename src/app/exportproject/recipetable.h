#pragma once

#include "nextdata/reciperun.h"

#include <QAbstractTableModel>
#include <QPointer>
#include <QTimer>

#include <optional>

class Project;

/// What a game takes of a project, an output a row, with what exporting it would do now.
///
/// Outputs are made and compared with their files while there is nothing else to do, a few at a time, so that a recipe
/// of any size shows at once. The table does not follow the project, nor the files: lookAgain() does when something
/// may have changed.
class RecipeTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { AssetColumn, FormColumn, FileColumn, SizeColumn, BanksColumn, StateColumn, ColumnCount };

    using State = NextData::RecipeRun::State;

    /// All outputs together, as far as they are looked at.
    struct Sum
    {
        qint64 bytes = 0;
        qint64 pages = 0; ///< of 8 KiB, which outputs do not share
        QHash<State, int> count; ///< of outputs
        int unknown = 0; ///< outputs that are not looked at yet
    };

    explicit RecipeTable(QObject *parent = nullptr);

    /// Shows a project's recipe, with the names that its assets have now. The project must live until close().
    void open(const Project &project, const QString &projectFile, const NextData::Recipe &recipe);
    void close();

    [[nodiscard]] const NextData::Recipe &recipe() const { return m_recipe; }
    /// Whether it differs from the one that is saved.
    [[nodiscard]] bool isModified() const { return !(m_recipe == m_saved); }
    void setSaved() { m_saved = m_recipe; }

    [[nodiscard]] const NextData::RecipeOutput &output(int row) const { return m_recipe.outputs().at(row); }
    [[nodiscard]] int rowOf(const QString &file) const; ///< -1 when it is no output's

    // Each resets the model: outputs are sorted by file. Outputs must be such that a recipe can hold them, together.
    void add(const QList<NextData::RecipeOutput> &outputs);
    void replace(int row, const NextData::RecipeOutput &output);
    /// Gives outputs other values of some options, and the files that go with them, which are returned.
    QStringList setOptions(const QList<int> &rows, const QMap<QString, QString> &options);
    void remove(const QList<int> &rows);
    /// The files of the copies, for rows in any order.
    QStringList duplicate(const QList<int> &rows);

    /// Looks at all outputs again, for the project or the files may have changed.
    void lookAgain();
    /// Whether there are outputs to be looked at yet, or again.
    [[nodiscard]] bool isLooking() const { return m_idle.isActive(); }
    /// Nothing before it is looked at.
    [[nodiscard]] const std::optional<NextData::RecipeRun::Outcome> &outcome(int row) const;
    [[nodiscard]] Sum sum() const;
    /// The files of an output, for a preview.
    [[nodiscard]] NextData::Result<QList<NextData::OutputFile>> make(int row);
    /// Does the recipe; see RecipeRun::runAll().
    [[nodiscard]] QList<NextData::RecipeRun::Outcome> run(const NextData::RecipeRun::Progress &progress);

    /// The run of a recipe that lies beside its project, whose files it spares.
    [[nodiscard]] static NextData::RecipeRun runOf(const Project &project, const QString &projectFile,
                                                   const NextData::Recipe &recipe);
    /// The size of an output in the game; -1 when it has none.
    [[nodiscard]] static qint64 bytesOf(const Project &project, const NextData::RecipeOutput &output);
    [[nodiscard]] static QString pagesText(qint64 pages);
    /// "6 pages of 8 KiB, 3 banks of 16 KiB"
    [[nodiscard]] static QString banksText(qint64 bytes);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

signals:
    /// More outputs are looked at: sum() and outcomes are newer.
    void looked();

private:
    struct Row
    {
        std::optional<NextData::RecipeRun::Outcome> outcome;
        mutable std::optional<qint64> bytes; ///< -1 when there are none
    };

    void setOutputs(const QList<NextData::RecipeOutput> &outputs);
    void lookOn();
    [[nodiscard]] qint64 bytesOf(int row) const;
    [[nodiscard]] QString text(int row, Column column) const;
    [[nodiscard]] QString toolTip(int row, Column column) const;
    [[nodiscard]] QString stateText(int row) const;

    QPointer<const Project> m_project;
    QString m_projectFile;
    NextData::Recipe m_recipe;
    NextData::Recipe m_saved;
    QList<Row> m_rows;
    std::optional<NextData::RecipeRun> m_run; ///< that looks, output by output
    std::optional<NextData::RecipeRun> m_previewRun; ///< that makes one here and one there
    int m_next = 0; ///< the row to be looked at
    bool m_isRunning = false;
    QTimer m_idle;
};
