#pragma once

#include "app/menus/projectmenu.h"
#include "model/enums.h"

#include <QUuid>

#include <functional>

class ImageDialog;

/// The "Image" menu.
class ImageMenu : public ProjectMenu
{
    Q_OBJECT

public:
    using PaletteProvider = std::function<Palette *()>;

    explicit ImageMenu(QWidget *parent = nullptr);

    /// Where the menu finds the palette in front, which a new image is offered first.
    void setPaletteProvider(const PaletteProvider &provider) { m_paletteInFront = provider; }

public slots:
    void showNewDialog();

signals:
    void createImage(const QString &name, Quenmora::ImageMode mode, const QUuid &paletteId);

protected:
    void updateActions() override;

private:
    QPointer<ImageDialog> m_dialog;
    PaletteProvider m_paletteInFront = [] { return nullptr; };
};
