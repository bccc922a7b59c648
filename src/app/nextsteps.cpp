#include "app/nextsteps.h"

#include "app/menus/filemenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/menubar.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "app/widebutton.h"
#include "ui/svgiconengine.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

NextSteps::NextSteps(const MenuBar &menus, QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // what is in it has the keyboard
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setWidgetResizable(true);
    auto *steps = new QWidget;
    auto *layout = new QVBoxLayout(steps);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(2);
    auto *heading = new QLabel(tr("This project is empty. Begin with:"));
    heading->setWordWrap(true);
    layout->addWidget(heading);
    const auto add = [layout](const QString &text, const QString &icon, const QString &toolTip, auto *menu,
                              auto chosen) {
        QToolButton *button = wideButton(text, themedIcon(icon));
        button->setToolTip(toolTip);
        QObject::connect(button, &QToolButton::clicked, menu, chosen);
        layout->addWidget(button);
    };
    add(tr("A map from a picture"), QStringLiteral(":/Import"),
        tr("Cuts a picture into tiles and makes a palette, a tile set and a map of it"), menus.mapMenu(),
        &MapMenu::showPictureDialog);
    add(tr("Files that there are"), QStringLiteral(":/Import"),
        tr("Looks at files of any kind, shows what they are, and makes assets of them"), menus.fileMenu(),
        &FileMenu::showImportDialog);
    add(tr("A new palette"), QStringLiteral(":/Palette"), tr("The colours that everything else is drawn with"),
        menus.paletteMenu(), &PaletteMenu::showNewDialog);
    add(tr("A new tile set"), QStringLiteral(":/TileSet"), tr("The tiles that maps are built from"), menus.tileMenu(),
        &TileMenu::showNewDialog);
    add(tr("New sprites"), QStringLiteral(":/Sprite"), tr("A bank of sprites of 16 × 16 pixels"), menus.spriteMenu(),
        &SpriteMenu::showNewDialog);
    setWidget(steps);
}
