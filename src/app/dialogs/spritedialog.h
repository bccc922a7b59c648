#pragma once

#include "app/dialogs/creationdialog.h"

#include <QUuid>

class AssetChooser;
class DepthChooser;
class Project;

/// Asks for a new sprite bank: its name, its palette or a new one, and its colour depth.
class SpriteDialog : public CreationDialog
{
    Q_OBJECT
    Q_MOC_INCLUDE("model/project.h")

public:
    enum CreateOption {
        FourBit = 0x00, ///< unless EightBit is set
        EightBit = 0x01,
        NewPalette = 0x02 ///< a blank palette is to be made for the bank
    };
    Q_DECLARE_FLAGS(CreateOptions, CreateOption)
    Q_FLAG(CreateOptions)

    explicit SpriteDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog with the palettes of a project.
    void show(const Project &project);

signals:
    void accepted(SpriteDialog::CreateOptions options, const QString &name, const QUuid &paletteId);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    AssetChooser *m_palette;
    DepthChooser *m_depth;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(SpriteDialog::CreateOptions)
