#include "app/menus/tilemenu.h"

#include "app/dialogs/exportdialog.h"
#include "app/dialogs/importzxfontdialog.h"
#include "app/dialogs/paletteselectordialog.h"
#include "app/dialogs/tileanimationdialog.h"
#include "app/dialogs/tilesetdialog.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"

#include <QDebug>

TileMenu::TileMenu(QWidget *parent) : ProjectMenu(tr("&Tiles"), parent)
{
    addCommand(this, QStringLiteral("tiles.new"), tr("&New Tile Set"), &TileMenu::showNewDialog,
               {Qt::CTRL | Qt::ALT | Qt::Key_T}, QStringLiteral(":/TileSet"));
    addSeparator();
    QMenu *importMenu = nullptr;
    m_tileSetActions = {
        addCommand(this, QStringLiteral("tiles.createAnimations"), tr("&Create Animations"),
                   &TileMenu::showAnimationDialog, {}, QStringLiteral(":/Film")),
        addCommand(this, QStringLiteral("tiles.swapPalette"), tr("&Swap Palette"), &TileMenu::showSwapPaletteDialog, {},
                   QStringLiteral(":/Swap")),
        addCommand(this, QStringLiteral("tiles.export"), tr("&Export"), &TileMenu::showExportDialog, {},
                   QStringLiteral(":/Export")),
        addCommand(this, QStringLiteral("tiles.exportAttributes"), tr("Export &Attributes"),
                   &TileMenu::showExportAttributesDialog, {}, QStringLiteral(":/Tag")),
        (importMenu = addMenu(tr("&Import")))->menuAction(),
        addSeparator(),
        addCommand(this, QStringLiteral("tiles.next"), tr("Ne&xt Tile"), &TileMenu::nextTile,
                   {Qt::CTRL | Qt::Key_BracketRight}),
        addCommand(this, QStringLiteral("tiles.previous"), tr("&Previous Tile"), &TileMenu::previousTile,
                   {Qt::CTRL | Qt::Key_BracketLeft}),
        (m_magnificationMenu = addMenu(tr("Tile List &Magnification")))->menuAction(),
    };
    importMenu->setIcon(themedIcon(QStringLiteral(":/Import")));
    QAction *font = Commands::add(importMenu->addAction(tr("&Spectrum Chars")), QStringLiteral("tiles.importFont"));
    connect(font, &QAction::triggered, this, &TileMenu::showImportFontDialog);
    addImportAgain(QStringLiteral("tiles.importAgain"), [this] { return m_tileSet ? m_tileSet->id() : QUuid(); });
}

void TileMenu::setMagnificationActions(const QList<QAction *> &actions)
{
    m_magnificationMenu->clear();
    m_magnificationMenu->addActions(actions);
}

void TileMenu::setTileSet(const QPointer<TileSet> &tileSet)
{
    setActive(m_tileSet, tileSet);
}

void TileMenu::updateActions()
{
    setEnabled(project());
    for (QAction *action : m_tileSetActions)
        action->setEnabled(m_tileSet);
}

void TileMenu::showNewDialog()
{
    if (project())
        lazily(m_newDialog, this, &TileMenu::createTiles)->show(*project());
}

void TileMenu::showAnimationDialog()
{
    if (project() && m_tileSet)
        lazily(m_animationDialog, this, &TileMenu::createBlocks)->show(*project(), m_tileSet->id());
}

void TileMenu::showSwapPaletteDialog()
{
    if (project() && m_tileSet)
        lazily(m_paletteDialog, this, &TileMenu::swapPalette)->show(*project(), m_tileSet->paletteId());
}

void TileMenu::showExportDialog()
{
    if (m_tileSet)
        lazily(m_exportDialog, this, &TileMenu::exportAccepted)->show(*m_tileSet);
}

void TileMenu::exportAccepted(int first, int last, bool rotate)
{
    if (!m_tileSet) {
        qWarning("Null tileset");
        return;
    }
    const QString file =
        fileToSave(tr("Export Tiles"), m_tileSet->name(), {tr("Tile Data (*.bin)")}, QStringLiteral(".bin"));
    if (file.isEmpty() || !m_tileSet)
        return;
    const bool written = m_tileSet->exportBlocks(file, first, last, rotate);
    if (!written)
        qWarning("Export failed!");
    reportExport(written, m_tileSet->name(), file);
}

void TileMenu::showExportAttributesDialog()
{
    if (!m_tileSet)
        return;
    const QString file = fileToSave(tr("Export tile attributes"), m_tileSet->name(),
                                    {tr("ASM Code (*.asm)"), tr("Binary Data (*.bin)")}, QStringLiteral(".asm"));
    if (file.isEmpty() || !m_tileSet)
        return;
    const bool binary = file.endsWith(QLatin1String(".bin"), Qt::CaseInsensitive);
    reportExport(binary ? m_tileSet->exportAttributesBinary(file) : m_tileSet->exportAttributesAsm(file),
                 m_tileSet->name(), file);
}

void TileMenu::showImportFontDialog()
{
    if (!m_tileSet)
        return;
    ImportZXFontDialog *dialog = lazily(m_fontDialog, this, &TileMenu::importZXFont);
    dialog->setFileChooser(fileChooser());
    dialog->show(*m_tileSet);
}
