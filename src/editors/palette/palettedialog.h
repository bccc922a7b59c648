#pragma once

#include "model/project.h"
#include "ui/dialogbase.h"

#include <QStringList>

class QButtonGroup;
class QLineEdit;

/// Asks for the name and the content of a new palette.
class PaletteDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit PaletteDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog; items are the names that are taken.
    void show(const QStringList &items);

signals:
    void accepted(CreateAction action, const QString &name);

protected:
    QString problem() const override;
    void submit() override;

private:
    QLineEdit *m_name;
    QButtonGroup *m_choice;
    QStringList m_taken;
};
