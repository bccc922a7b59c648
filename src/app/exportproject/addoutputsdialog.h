#pragma once

#include "nextdata/form.h"
#include "nextdata/recipe.h"
#include "nextdata/takenfiles.h"
#include "ui/dialogbase.h"

#include <QHash>
#include <QList>
#include <QStringList>
#include <QUuid>

class Project;
class QComboBox;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// Asks which assets of a project are exported as well: a list of them by kind, with the forms for each kind.
class AddOutputsDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit AddOutputsDialog(QWidget *parent = nullptr);

    /// Opens the dialog. All assets are ticked where nothing is exported yet.
    void show(const Project &project, const NextData::Recipe &recipe);

signals:
    void accepted(const QList<NextData::RecipeOutput> &outputs);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    void addKind(NextData::AssetKind kind, const QList<NextData::Source> &sources);
    void orderFocus();
    [[nodiscard]] QComboBox *formChooser(const QList<NextData::Source> &sources, const QString &kind) const;
    /// The forms of an asset's item: the one that is chosen for its kind, or the usual ones.
    [[nodiscard]] QList<const NextData::Form *> formsOf(QTreeWidgetItem &item) const;
    [[nodiscard]] QList<NextData::RecipeOutput> outputsOf(QTreeWidgetItem &item, NextData::TakenFiles &taken) const;
    [[nodiscard]] QList<NextData::RecipeOutput> chosen() const;
    /// Shows forms and files as they would be.
    void follow();
    void showForms(QTreeWidgetItem &item) const;
    /// The files that it would get, or has already.
    void showFiles(QTreeWidgetItem &item, const QStringList &files) const;
    [[nodiscard]] QString folder() const;

    NextData::Recipe m_recipe;
    QHash<QUuid, QStringList> m_filesOf; ///< of assets that are exported already
    QList<NextData::Source> m_sources; ///< as long as the dialog is open
    QTreeWidget *m_assets;
    QComboBox *m_text;
    QLineEdit *m_folder;
};
