#include "app/dialogs/spritedialog.h"

#include "app/dialogs/assetchooser.h"
#include "app/dialogs/depthchooser.h"
#include "model/project.h"

#include <QFormLayout>

SpriteDialog::SpriteDialog(QWidget *parent)
    : CreationDialog(tr("New Sprites"), tr("Create a new sprite bank"), parent)
    , m_palette(new AssetChooser(this))
    , m_depth(new DepthChooser(this))
{
    form()->addRow(tr("&Palette"), m_palette);
    form()->addRow(tr("&Depth"), m_depth);
    connect(m_palette, &QComboBox::currentIndexChanged, this, &SpriteDialog::revalidate);
}

void SpriteDialog::show(const Project &project)
{
    m_palette->offerPalettes(project, tr("New palette of the same name"));
    openWithName({});
}

QString SpriteDialog::problem() const
{
    const QString found = CreationDialog::problem();
    return found.isEmpty() ? m_palette->newPaletteProblem(name()) : found;
}

void SpriteDialog::submit()
{
    CreateOptions options = m_depth->depth() == Quenmora::EightBit ? EightBit : FourBit;
    options.setFlag(NewPalette, m_palette->id().isNull());
    emit accepted(options, name(), m_palette->id());
}
