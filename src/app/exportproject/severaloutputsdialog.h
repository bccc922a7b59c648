#pragma once

#include "ui/dialogbase.h"

#include <QMap>

class OptionFields;

/// Asks for options that several outputs are to have alike: source text, padding, cutting into files.
class SeveralOutputsDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit SeveralOutputsDialog(QWidget *parent = nullptr);

    /// Opens the dialog for so many outputs.
    void show(int count);

signals:
    /// The options that were chosen, defaults included; the others stay as they are.
    void accepted(const QMap<QString, QString> &options);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    OptionFields *m_options;
};
