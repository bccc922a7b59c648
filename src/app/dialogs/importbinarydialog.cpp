#include "app/dialogs/importbinarydialog.h"

#include "app/dialogs/assetchooser.h"
#include "app/dialogs/depthchooser.h"
#include "model/project.h"
#include "model/spritebank.h"

#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>

namespace SpriteEditor {

ImportBinaryDialog::ImportBinaryDialog(QWidget *parent)
    : CreationDialog(tr("Import Sprites"), tr("Make sprites of raw data"), parent)
    , m_palette(new AssetChooser(this))
    , m_depth(new DepthChooser(this))
    , m_summary(new QLabel(this))
{
    setTabOrder(m_depth, m_palette);
    form()->addRow(tr("&Depth"), m_depth);
    form()->addRow(tr("&Palette"), m_palette);
    form()->addRow(tr("Sprites"), m_summary);
    connect(m_palette, &QComboBox::currentIndexChanged, this, &ImportBinaryDialog::revalidate);
}

void ImportBinaryDialog::show(const Project &project, const QString &file)
{
    m_file = file;
    m_count = QFileInfo(file).size() / SpriteBank::SpriteBytes;
    m_summary->setText(tr("%L1 in the file").arg(m_count));
    m_palette->offerPalettes(project, tr("New standard palette"));
    openWithName(QFileInfo(file).completeBaseName());
}

QString ImportBinaryDialog::problem() const
{
    const QString found = CreationDialog::problem();
    if (!found.isEmpty())
        return found;
    if (m_count == 0)
        return tr("There is no sprite in this file, or it cannot be read");
    if (m_count >= SpriteBank::MaxCount)
        return tr("The file holds more sprites than fit into a bank");
    return m_palette->newPaletteProblem(name());
}

void ImportBinaryDialog::submit()
{
    emit accepted({m_file, name(), m_depth->depth(), m_palette->id()});
}

} // namespace SpriteEditor
