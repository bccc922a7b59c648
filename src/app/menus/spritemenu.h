#pragma once

#include "app/dialogs/spritedialog.h"
#include "app/imports/spriteimport.h"
#include "app/menus/projectmenu.h"
#include "model/spritebank.h"

#include <QUuid>

class PaletteSelectorDialog;

namespace SpriteEditor {
class ImportBinaryDialog;
class ImportImageDialog;
} // namespace SpriteEditor

/// The "Sprites" menu: new and imported sprite banks, and what can be done with the active one.
class SpriteMenu : public ProjectMenu
{
    Q_OBJECT

public:
    explicit SpriteMenu(QWidget *parent = nullptr);

    [[nodiscard]] SpriteBank *spriteBank() const { return m_spriteBank; }

public slots:
    /// The active sprite bank, or null.
    void setSpriteBank(const QPointer<SpriteBank> &bank);
    void showNewDialog();
    void showImportDialog();
    /// Opens the dialog for a file of sprite data or a picture.
    void importFile(const QString &filePath);
    void showSwapPaletteDialog();
    void showExportDialog();

signals:
    void create(SpriteDialog::CreateOptions options, const QString &name, const QUuid &paletteId);
    void importPictureRequested(const SpriteImport &import);
    void importDataRequested(const SpriteImport &import);
    void swapPalette(const QUuid &paletteId);

protected:
    void updateActions() override;

private:
    QPointer<SpriteBank> m_spriteBank;
    QAction *m_swap;
    QAction *m_export;
    QPointer<SpriteDialog> m_newDialog;
    QPointer<PaletteSelectorDialog> m_paletteDialog;
    QPointer<SpriteEditor::ImportImageDialog> m_pictureDialog;
    QPointer<SpriteEditor::ImportBinaryDialog> m_dataDialog;
};
