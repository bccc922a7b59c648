#include "app/dialogs/paletteselectordialog.h"

#include "app/dialogs/assetchooser.h"
#include "model/project.h"

#include <QFormLayout>

PaletteSelectorDialog::PaletteSelectorDialog(QWidget *parent)
    : DialogBase(tr("Swap Palette"), parent)
    , m_palette(new AssetChooser(this))
{
    setHeader(tr("Show with another palette"));
    form()->addRow(tr("&Palette"), m_palette);
}

void PaletteSelectorDialog::show(const Project &project, const QUuid &current)
{
    m_palette->offerPalettes(project);
    m_palette->choose(current);
    open();
}

QString PaletteSelectorDialog::problem() const
{
    return m_palette->count() == 0 ? tr("There is no palette to choose; please create one first") : QString();
}

void PaletteSelectorDialog::submit()
{
    emit accepted(m_palette->id());
}
