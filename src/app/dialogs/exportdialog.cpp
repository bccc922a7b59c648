#include "app/dialogs/exportdialog.h"

#include "model/tileset.h"
#include "ui/indexsuffix.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QSpinBox>

namespace TileEditor {

ExportDialog::ExportDialog(QWidget *parent)
    : DialogBase(tr("Export Tiles"), parent)
    , m_first(new QSpinBox(this))
    , m_last(new QSpinBox(this))
    , m_rotate(new QCheckBox(tr("&Rotate"), this))
{
    setHeader(tr("Export the pixels of tiles"));
    m_rotate->setToolTip(tr("Writes the columns of a tile as its rows"));
    form()->addRow(tr("&First tile"), m_first);
    form()->addRow(tr("&Last tile"), m_last);
    form()->addRow(QString(), m_rotate);
    for (QSpinBox *box : {m_first, m_last}) {
        showIndexSuffix(*box);
        connect(box, &QSpinBox::valueChanged, this, &ExportDialog::revalidate);
    }
}

void ExportDialog::show(const TileSet &tileSet)
{
    setWindowTitle(tr("Export Tiles: %1").arg(tileSet.name()));
    const int count = tileSet.count();
    const bool toTheEnd = m_last->value() >= m_count;
    m_count = count;
    for (QSpinBox *box : {m_first, m_last})
        box->setRange(1, count);
    if (toTheEnd)
        m_last->setValue(count);
    open();
}

QString ExportDialog::problem() const
{
    if (m_count == 0)
        return tr("The tile set has no tiles");
    return m_first->value() > m_last->value() ? tr("The first tile comes after the last one") : QString();
}

void ExportDialog::submit()
{
    emit accepted(m_first->value(), m_last->value(), m_rotate->isChecked());
}

} // namespace TileEditor
