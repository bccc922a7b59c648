#pragma once

#include "app/menus/projectmenu.h"
#include "model/palette.h"

#include <QUuid>

class PaletteDialog;

/// The "Palette" menu: new palettes, and the files of the active one.
class PaletteMenu : public ProjectMenu
{
    Q_OBJECT

public:
    explicit PaletteMenu(QWidget *parent = nullptr);

    [[nodiscard]] Palette *palette() const { return m_palette; }

public slots:
    /// The active palette, or null.
    void setPalette(const QPointer<Palette> &palette);
    void showNewDialog();
    void showImportDialog();
    void showExportDialog();

signals:
    void createPalette(CreateAction action, const QString &name);
    /// A file is to be read into the active palette, or into a new one when none is active (a null id).
    void importRequested(const QUuid &paletteId, const QString &filePath);

protected:
    void updateActions() override;

private:
    QPointer<Palette> m_palette;
    QAction *m_name;
    QAction *m_export;
    QPointer<PaletteDialog> m_dialog;
};
