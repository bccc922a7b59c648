#pragma once

#include "app/menus/projectmenu.h"
#include "model/enums.h"

#include <QUuid>

#include <functional>

class Image;
class ImageDialog;
class PaletteSelectorDialog;

/// The "Image" menu.
class ImageMenu : public ProjectMenu
{
    Q_OBJECT

public:
    using PaletteProvider = std::function<Palette *()>;

    explicit ImageMenu(QWidget *parent = nullptr);

    /// Where the menu finds the palette in front, which a new image is offered first.
    void setPaletteProvider(const PaletteProvider &provider) { m_paletteInFront = provider; }
    /// The image that is being edited, or null.
    void setImage(const QPointer<Image> &image);

public slots:
    void showNewDialog();
    void showSwapPaletteDialog();

signals:
    void createImage(const QString &name, Quenmora::ImageMode mode, const QUuid &paletteId);
    void swapPalette(const QUuid &paletteId);

protected:
    void updateActions() override;

private:
    QPointer<Image> m_image;
    QPointer<ImageDialog> m_dialog;
    PaletteProvider m_paletteInFront = [] { return nullptr; };
    QPointer<PaletteSelectorDialog> m_paletteDialog;
    QAction *m_swap;
};
