#include "app/menus/imagemenu.h"

#include "app/dialogs/imagedialog.h"
#include "model/palette.h"

ImageMenu::ImageMenu(QWidget *parent) : ProjectMenu(tr("&Image"), parent)
{
    addCommand(this, tr("&New Image"), &ImageMenu::showNewDialog, {}, QStringLiteral(":/Image"));
}

void ImageMenu::updateActions()
{
    setEnabled(project());
}

void ImageMenu::showNewDialog()
{
    if (!project())
        return;
    const Palette *inFront = m_paletteInFront();
    lazily(m_dialog, this, &ImageMenu::createImage)->show(*project(), inFront ? inFront->id() : QUuid());
}
