#pragma once

#include "nextdata/recipe.h"
#include "nextdata/takenfiles.h"
#include "ui/dialogbase.h"

#include <QPointer>

class OptionFields;
class Project;
class QComboBox;
class QLabel;
class QLineEdit;

/// Asks in which form, with which options and to which file an asset is exported.
class OutputDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit OutputDialog(QWidget *parent = nullptr);

    /// Opens the dialog for an output of a project's recipe. Its file may be none of the others.
    void show(const Project &project, const NextData::RecipeOutput &output, const NextData::TakenFiles &others);

signals:
    void accepted(const NextData::RecipeOutput &output);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    void offerForms();
    void changeForm();
    void follow();
    [[nodiscard]] NextData::RecipeOutput output() const;
    [[nodiscard]] QString sizeText() const;

    QPointer<const Project> m_project;
    NextData::RecipeOutput m_output; ///< as it was
    NextData::TakenFiles m_others;
    NextData::RecipeOutput m_shown; ///< as it is now
    QLabel *m_assetIcon;
    QLabel *m_asset;
    QComboBox *m_form;
    QLineEdit *m_file;
    OptionFields *m_options;
    QLabel *m_size;
};
