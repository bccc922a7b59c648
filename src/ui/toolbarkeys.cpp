#include "ui/toolbarkeys.h"

#include <QCoreApplication>
#include <QToolBar>
#include <QToolButton>

void letKeysReach(QToolBar *toolBar)
{
    const QList<QToolButton *> buttons = toolBar->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        button->setFocusPolicy(Qt::TabFocus);
        if (button->objectName() == QLatin1String("qt_toolbar_ext_button"))
            button->setAccessibleName(QCoreApplication::translate("ToolBarKeys", "More"));
    }
}
