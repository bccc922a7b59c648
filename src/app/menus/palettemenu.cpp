#include "app/menus/palettemenu.h"

#include "editors/palette/palettedialog.h"
#include "ui/plaintext.h"

PaletteMenu::PaletteMenu(QWidget *parent) : ProjectMenu(tr("&Palette"), parent)
{
    addCommand(this, QStringLiteral("palette.new"), tr("&New Palette"), &PaletteMenu::showNewDialog,
               {Qt::CTRL | Qt::ALT | Qt::Key_P}, QStringLiteral(":/Palette"));
    addCommand(this, QStringLiteral("palette.import"), tr("&Import"), &PaletteMenu::showImportDialog, {},
               QStringLiteral(":/Import"));
    addSeparator();
    m_name = addAction(tr("No Palette"));
    m_name->setEnabled(false);
    m_export = addCommand(this, QStringLiteral("palette.export"), tr("&Export"), &PaletteMenu::showExportDialog, {},
                          QStringLiteral(":/Export"));
    addImportAgain(QStringLiteral("palette.importAgain"), [this] { return m_palette ? m_palette->id() : QUuid(); });
}

void PaletteMenu::setPalette(const QPointer<Palette> &palette)
{
    setActive(m_palette, palette);
    if (m_palette)
        connect(m_palette, &Palette::nameChanged, this, &PaletteMenu::updateActions);
}

void PaletteMenu::updateActions()
{
    setEnabled(project());
    m_export->setEnabled(m_palette);
    m_name->setText(m_palette ? withoutMnemonic(m_palette->name()) : tr("No Palette"));
    m_name->setToolTip(plainText(m_name->toolTip()));
}

void PaletteMenu::showNewDialog()
{
    if (project())
        lazily(m_dialog, this, &PaletteMenu::createPalette)->show(project()->paletteNames());
}

void PaletteMenu::showImportDialog()
{
    if (!project())
        return;
    const QString file = fileToOpen(tr("Import Palette"), {tr("Palette (*.pal *.npl)"), tr("Images (*.png *.bmp)")});
    if (!file.isEmpty())
        emit importRequested(m_palette ? m_palette->id() : QUuid(), file);
}

void PaletteMenu::showExportDialog()
{
    if (!m_palette)
        return;
    const QString file =
        fileToSave(tr("Export Palette"), m_palette->name(), {tr("Palette (*.pal *.npl)")}, QStringLiteral(".pal"));
    if (!file.isEmpty() && m_palette)
        reportExport(m_palette->exportData(file), m_palette->name(), file);
}
