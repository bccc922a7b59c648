#include "app/dialogs/imagedialog.h"

#include "app/dialogs/assetchooser.h"
#include "model/project.h"

#include <QFormLayout>

ImageDialog::ImageDialog(QWidget *parent)
    : CreationDialog(tr("New Image"), tr("Create a new image"), parent)
    , m_mode(new QComboBox(this))
    , m_palette(new AssetChooser(this))
{
    m_mode->addItem(tr("256x192 256 colours"), Quenmora::Layer2_256x192);
    m_mode->addItem(tr("320x256 256 colours"), Quenmora::Layer2_320x256);
    m_mode->addItem(tr("640x256 16 colours"), Quenmora::Layer2_640x256);
    m_mode->addItem(tr("128x96 256 colours"), Quenmora::LoRes_128x96);
    form()->addRow(tr("&Mode"), m_mode);
    form()->addRow(tr("&Palette"), m_palette);
}

void ImageDialog::show(const Project &project, const QUuid &palette)
{
    m_palette->offerPalettes(project);
    m_palette->choose(palette);
    openWithName({});
}

QString ImageDialog::problem() const
{
    if (m_palette->count() == 0)
        return tr("An image needs a palette; please create a palette first");
    return CreationDialog::problem();
}

void ImageDialog::submit()
{
    emit accepted(name(), Quenmora::ImageMode(m_mode->currentData().toInt()), m_palette->id());
}
