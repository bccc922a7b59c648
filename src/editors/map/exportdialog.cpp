#include "editors/map/exportdialog.h"

#include <QCheckBox>
#include <QFormLayout>

namespace MapEditor {

namespace {

bool isChosen(const QCheckBox *box)
{
    return box->isEnabled() && box->isChecked();
}

} // namespace

ExportDialog::ExportDialog(QWidget *parent)
    : DialogBase(tr("Export"), parent)
    , m_map(addCheckBox(tr("Export Map Data")))
    , m_tiles(addCheckBox(tr("Export Tile Data")))
    , m_palette(addCheckBox(tr("Export Palette Data")))
{ }

QCheckBox *ExportDialog::addCheckBox(const QString &text)
{
    auto *box = new QCheckBox(text);
    box->setChecked(true);
    form()->addRow(box);
    connect(box, &QCheckBox::toggled, this, &ExportDialog::revalidate);
    return box;
}

void ExportDialog::setAvailable(bool tiles, bool palette)
{
    m_tiles->setEnabled(tiles);
    m_palette->setEnabled(palette);
}

bool ExportDialog::exportMap() const
{
    return isChosen(m_map);
}

bool ExportDialog::exportTiles() const
{
    return isChosen(m_tiles);
}

bool ExportDialog::exportPalette() const
{
    return isChosen(m_palette);
}

QString ExportDialog::problem() const
{
    return exportMap() || exportTiles() || exportPalette() ? QString() : tr("Choose what to export");
}

} // namespace MapEditor
