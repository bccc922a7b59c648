#include "app/menus/spritemenu.h"

#include "app/dialogs/importbinarydialog.h"
#include "app/dialogs/importimagedialog.h"
#include "app/dialogs/paletteselectordialog.h"

#include <QDebug>

SpriteMenu::SpriteMenu(QWidget *parent) : ProjectMenu(tr("&Sprites"), parent)
{
    addCommand(this, tr("&New"), &SpriteMenu::showNewDialog, Qt::CTRL | Qt::SHIFT | Qt::Key_B,
               QStringLiteral(":/Sprite"));
    addCommand(this, tr("&Import"), &SpriteMenu::showImportDialog, {}, QStringLiteral(":/Import"));
    addSeparator();
    m_swap = addCommand(this, tr("&Swap Palette"), &SpriteMenu::showSwapPaletteDialog, {}, QStringLiteral(":/Swap"));
    m_export = addCommand(this, tr("&Export Data"), &SpriteMenu::showExportDialog, {}, QStringLiteral(":/Export"));
}

void SpriteMenu::setSpriteBank(const QPointer<SpriteBank> &bank)
{
    if (m_spriteBank)
        disconnect(m_spriteBank, nullptr, this, nullptr);
    m_spriteBank = bank;
    if (m_spriteBank)
        connect(m_spriteBank, &QObject::destroyed, this, [this] { setSpriteBank(nullptr); });
    updateActions();
}

void SpriteMenu::updateActions()
{
    setEnabled(project());
    m_swap->setEnabled(m_spriteBank);
    m_export->setEnabled(m_spriteBank);
}

void SpriteMenu::showNewDialog()
{
    if (project())
        lazily(m_newDialog, this, &SpriteMenu::create)->show(*project());
}

void SpriteMenu::showImportDialog()
{
    if (!project())
        return;
    const QString file = chooseFile({.title = tr("Select a file to import"),
                                     .nameFilters = {tr("Images (*.png *.bmp)"), tr("Next sprites (*.spr)")},
                                     .acceptMode = QFileDialog::AcceptOpen,
                                     .defaultSuffix = {},
                                     .folder = {}});
    if (file.isEmpty() || !project())
        return;
    if (file.endsWith(QLatin1String(".spr"), Qt::CaseInsensitive))
        lazily(m_dataDialog, this, &SpriteMenu::importDataRequested)->show(*project(), file);
    else
        lazily(m_pictureDialog, this, &SpriteMenu::importPictureRequested)->show(*project(), file);
}

void SpriteMenu::showSwapPaletteDialog()
{
    if (project() && m_spriteBank)
        lazily(m_paletteDialog, this, &SpriteMenu::swapPalette)->show(*project(), m_spriteBank->paletteId());
}

void SpriteMenu::showExportDialog()
{
    if (!m_spriteBank)
        return;
    const QString file = chooseFile({.title = tr("Export Sprite Data"),
                                     .nameFilters = {tr("Next Sprites (*.spr)")},
                                     .acceptMode = QFileDialog::AcceptSave,
                                     .defaultSuffix = QStringLiteral(".spr"),
                                     .folder = {}});
    if (file.isEmpty() || !m_spriteBank || m_spriteBank->exportSpr(file))
        return;
    qWarning("Failed to save data");
    reportExportFailure();
}
