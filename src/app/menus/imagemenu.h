#pragma once

#include "app/menus/projectmenu.h"
#include "model/enums.h"

#include <QUuid>

class ImageDialog;

/// The "Image" menu.
class ImageMenu : public ProjectMenu
{
    Q_OBJECT

public:
    explicit ImageMenu(QWidget *parent = nullptr);

public slots:
    void showNewDialog();

signals:
    void createImage(const QString &name, Quenmora::ImageMode mode, const QUuid &paletteId);

protected:
    void updateActions() override;

private:
    QPointer<ImageDialog> m_dialog;
};
