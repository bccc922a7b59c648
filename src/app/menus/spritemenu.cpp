#include "app/menus/spritemenu.h"

#include "app/dialogs/importbinarydialog.h"
#include "app/dialogs/importimagedialog.h"
#include "app/dialogs/paletteselectordialog.h"

#include <QDebug>

SpriteMenu::SpriteMenu(QWidget *parent) : ProjectMenu(tr("&Sprites"), parent)
{
    addCommand(this, QStringLiteral("sprites.new"), tr("&New"), &SpriteMenu::showNewDialog,
               {Qt::CTRL | Qt::SHIFT | Qt::Key_B}, QStringLiteral(":/Sprite"));
    addCommand(this, QStringLiteral("sprites.import"), tr("&Import"), &SpriteMenu::showImportDialog, {},
               QStringLiteral(":/Import"));
    addSeparator();
    m_swap = addCommand(this, QStringLiteral("sprites.swapPalette"), tr("&Swap Palette"),
                        &SpriteMenu::showSwapPaletteDialog, {}, QStringLiteral(":/Swap"));
    m_export = addCommand(this, QStringLiteral("sprites.export"), tr("&Export Data"), &SpriteMenu::showExportDialog, {},
                          QStringLiteral(":/Export"));
    addImportAgain(QStringLiteral("sprites.importAgain"),
                   [this] { return m_spriteBank ? m_spriteBank->id() : QUuid(); });
}

void SpriteMenu::setSpriteBank(const QPointer<SpriteBank> &bank)
{
    setActive(m_spriteBank, bank);
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
    const QString file =
        fileToOpen(tr("Select a file to import"), {tr("Images (*.png *.bmp)"), tr("Next sprites (*.spr)")});
    if (!file.isEmpty())
        importFile(file);
}

void SpriteMenu::importFile(const QString &filePath)
{
    if (!project())
        return;
    if (filePath.endsWith(QLatin1String(".spr"), Qt::CaseInsensitive))
        lazily(m_dataDialog, this, &SpriteMenu::importDataRequested)->show(*project(), filePath);
    else
        lazily(m_pictureDialog, this, &SpriteMenu::importPictureRequested)->show(*project(), filePath);
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
    const QString file = fileToSave(tr("Export Sprite Data"), m_spriteBank->name(), {tr("Next Sprites (*.spr)")},
                                    QStringLiteral(".spr"));
    if (file.isEmpty() || !m_spriteBank)
        return;
    const bool written = m_spriteBank->exportSpr(file);
    if (!written)
        qWarning("Failed to save data");
    reportExport(written, m_spriteBank->name(), file);
}
