#include "app/menus/imagemenu.h"

#include "app/dialogs/imagedialog.h"
#include "app/dialogs/paletteselectordialog.h"
#include "model/image.h"
#include "model/palette.h"

ImageMenu::ImageMenu(QWidget *parent) : ProjectMenu(tr("&Image"), parent)
{
    addCommand(this, QStringLiteral("image.new"), tr("&New Image"), &ImageMenu::showNewDialog, {},
               QStringLiteral(":/Image"));
    addSeparator();
    m_swap = addCommand(this, QStringLiteral("image.swapPalette"), tr("&Swap Palette"),
                        &ImageMenu::showSwapPaletteDialog, {}, QStringLiteral(":/Swap"));
    addImportAgain(QStringLiteral("image.importAgain"), [this] { return m_image ? m_image->id() : QUuid(); });
}

void ImageMenu::setImage(const QPointer<Image> &image)
{
    setActive(m_image, image);
}

void ImageMenu::updateActions()
{
    setEnabled(project());
    m_swap->setEnabled(m_image);
}

void ImageMenu::showNewDialog()
{
    if (!project())
        return;
    const Palette *inFront = m_paletteInFront();
    lazily(m_dialog, this, &ImageMenu::createImage)->show(*project(), inFront ? inFront->id() : QUuid());
}

void ImageMenu::showSwapPaletteDialog()
{
    if (project() && m_image)
        lazily(m_paletteDialog, this, &ImageMenu::swapPalette)->show(*project(), m_image->paletteId());
}
