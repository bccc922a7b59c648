#pragma once

#include "ui/dialogbase.h"

class QLineEdit;

/// The base of the dialogs that make a named asset: the name is their first field, and is needed.
class CreationDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit CreationDialog(const QString &title, const QString &header, QWidget *parent = nullptr);

protected:
    /// Opens the dialog with this name in its field.
    void openWithName(const QString &name);

    /// What was typed, without spaces around it.
    [[nodiscard]] QString name() const;
    [[nodiscard]] QLineEdit *nameField() const { return m_name; }

    [[nodiscard]] QString problem() const override;

private:
    QLineEdit *m_name;
};
