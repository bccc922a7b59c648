#include "app/keyboardreturn.h"

#include "app/documenttabview.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilepickertool.h"
#include "editors/map/blockselectorwindow.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapspriteswindow.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QTextEdit>

namespace {

bool isTypedIn(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget)
        || qobject_cast<const QTextEdit *>(widget);
}

} // namespace

KeyboardReturn::KeyboardReturn(const DocumentViews &views, QObject *parent) : QObject(parent), m_views(views)
{
    qApp->installEventFilter(this); // the docks' content comes and goes
}

bool KeyboardReturn::serves(const QWidget *widget) const
{
    // not isAncestorOf(), which ends at windows
    for (; widget; widget = widget->parentWidget()) {
        for (const DockWidget *dock :
             std::initializer_list<const DockWidget *>{m_views.tilePicker, m_views.mapObjects, m_views.mapSprites}) {
            if (widget == dock->widget())
                return true;
        }
    }
    return false;
}

bool KeyboardReturn::eventFilter(QObject *watched, QEvent *event)
{
    if ((event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::Drop) && watched->isWidgetType()
        && serves(static_cast<const QWidget *>(watched))) {
        // a button is not clicked when it loses the keyboard before it has its release
        const bool isButton = qobject_cast<const QAbstractButton *>(watched);
        QMetaObject::invokeMethod(this, &KeyboardReturn::giveBack,
                                  isButton ? Qt::QueuedConnection : Qt::DirectConnection);
    }
    return false;
}

void KeyboardReturn::giveBack()
{
    auto *map = qobject_cast<MapEditor::View *>(m_views.tabs->currentWidget());
    if (!map || isTypedIn(QApplication::focusWidget()))
        return;
    if (!map->isActiveWindow())
        map->activateWindow(); // the dock floats
    map->setFocus(Qt::OtherFocusReason);
}
