#pragma once

#include "app/dialogs/creationdialog.h"

/// Asks for the name of a new project.
class ProjectDialog : public CreationDialog
{
    Q_OBJECT

public:
    explicit ProjectDialog(QWidget *parent = nullptr);

signals:
    void accepted(const QString &name);

protected:
    void submit() override { emit accepted(name()); }
    /// Every showing starts without a name.
    void showEvent(QShowEvent *event) override;
};
