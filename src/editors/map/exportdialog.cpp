#include "editors/map/exportdialog.h"

#include "model/map.h"
#include "model/palette.h"
#include "model/tileset.h"
#include "ui/plaintext.h"

#include <QCheckBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>

namespace MapEditor {

namespace {

constexpr int WidestFileName = 360; // pixels

bool isChosen(const QCheckBox *box)
{
    return box->isEnabled() && box->isChecked();
}

} // namespace

ExportDialog::ExportDialog(QWidget *parent)
    : DialogBase(tr("Export"), parent)
    , m_map(addChoice(tr("Export Map Data")))
    , m_tiles(addChoice(tr("Export Tile Data")))
    , m_palette(addChoice(tr("Export Palette Data")))
{ }

ExportDialog::Choice ExportDialog::addChoice(const QString &text)
{
    const Choice choice{new QCheckBox(text), new QLabel};
    choice.box->setChecked(true);
    choice.file->setTextFormat(Qt::PlainText);
    form()->addRow(choice.box, choice.file);
    connect(choice.box, &QCheckBox::toggled, this, &ExportDialog::revalidate);
    return choice;
}

void ExportDialog::offer(const Map &map, const QDir &folder)
{
    setWindowTitle(tr("Export: %1").arg(map.name()));
    setHeader(tr("Files in %1").arg(folder.dirName()));
    const QPointer<TileSet> tiles = map.tileSet();
    const Palette *palette = tiles ? tiles->palette() : nullptr;
    setFile(m_map, folder, map.exportFileName());
    setFile(m_tiles, folder, tiles ? tiles->exportFileName() : QString());
    setFile(m_palette, folder, palette ? palette->exportFileName() : QString());
}

void ExportDialog::setFile(const Choice &choice, const QDir &folder, const QString &fileName)
{
    choice.box->setEnabled(!fileName.isEmpty());
    const QString shown = choice.file->fontMetrics().elidedText(fileName, Qt::ElideMiddle, WidestFileName);
    choice.file->setText(!fileName.isEmpty() && folder.exists(fileName) ? tr("%1 (replaces this file)").arg(shown)
                                                                        : shown);
    choice.file->setToolTip(plainText(fileName));
}

bool ExportDialog::exportMap() const
{
    return isChosen(m_map.box);
}

bool ExportDialog::exportTiles() const
{
    return isChosen(m_tiles.box);
}

bool ExportDialog::exportPalette() const
{
    return isChosen(m_palette.box);
}

QString ExportDialog::problem() const
{
    return exportMap() || exportTiles() || exportPalette() ? QString() : tr("Choose what to export");
}

} // namespace MapEditor
