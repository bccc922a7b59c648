#pragma once

#include "app/documentcontroller.h"
#include "app/documenttabview.h"
#include "app/mainwindow.h"
#include "app/menus/editmenu.h"
#include "editors/animation/animationcontrolwidget.h"
#include "editors/animation/animationeditorwidget.h"
#include "editors/animation/animationlistwidget.h"
#include "editors/animation/animationtoolbar.h"
#include "editors/animation/blockeditorview.h"
#include "editors/animation/frameeditorwidget.h"
#include "editors/animation/spriteanimationeditorwidget.h"
#include "editors/animation/spriteeditorview.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/dragdata.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/spritelist.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/map/mapanimator.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/palette/paletteeditor.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileanimation.h"
#include "model/tileset.h"
#include "ui/toolpalette.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QRandomGenerator>
#include <QSpinBox>

#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

/// Chance, the mouse, and what the main window shows: what somebody needs who does random things in it.
class RandomHands
{
public:
    RandomHands(MainWindow &window, quint32 seed) : m_window(window), m_random(seed) { }

    [[nodiscard]] int number(int bound) { return int(m_random.bounded(quint32(bound))); }

protected:
    Project &project() { return *m_window.projectController()->project(); }
    const DocumentViews &views() { return m_window.views(); }
    bool chance() { return number(2) == 1; }

    /// One entry of a list, or a default value when it is empty.
    template <typename List>
    typename List::value_type any(const List &list)
    {
        return list.isEmpty() ? typename List::value_type() : list.at(number(int(list.size())));
    }
    template <typename Asset>
    QUuid idOf(const Asset &asset)
    {
        return asset ? asset->id() : QUuid();
    }
    QUuid anyPalette() { return idOf(any(project().palettes())); }
    QString anyName() { return QStringLiteral("Asset %1").arg(number(1000)); }
    QColor anyColour() { return QColor(number(256), number(256), number(256)); }

    // The mouse

    void mouse(QWidget *widget, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons)
    {
        QMouseEvent event(type, at, widget->mapToGlobal(at), button, buttons, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
    QPoint anyPoint(const QWidget *widget)
    {
        // a drag may leave the widget
        return {number(widget->width() + 20) - 10, number(widget->height() + 20) - 10};
    }
    void click(QWidget *widget, QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton);
        mouse(widget, QEvent::MouseButtonPress, at, button, button);
        mouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    }
    void drag(QWidget *widget, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPoint start(number(std::max(widget->width(), 1)), number(std::max(widget->height(), 1)));
        mouse(widget, QEvent::MouseMove, start, Qt::NoButton, Qt::NoButton);
        mouse(widget, QEvent::MouseButtonPress, start, button, button);
        QPoint end = start;
        for (int moves = number(4); moves > 0; --moves) {
            end = anyPoint(widget);
            mouse(widget, QEvent::MouseMove, end, Qt::NoButton, button);
        }
        mouse(widget, QEvent::MouseButtonRelease, end, button, Qt::NoButton);
    }
    void drop(QWidget *target, QMimeData *data, QPoint at, Qt::KeyboardModifiers modifiers)
    {
        const std::unique_ptr<QMimeData> owned(data);
        QDragEnterEvent enter(at, Qt::MoveAction, data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(target, &enter);
        QDragMoveEvent move(at, Qt::MoveAction, data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(target, &move);
        QDropEvent event(at, Qt::MoveAction, data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(target, &event);
    }
    /// Chooses an entry of a menu by its text.
    static bool choose(const QMenu *menu, const QString &text)
    {
        for (QAction *action : menu->actions()) {
            if (action->text() == text && action->isEnabled()) {
                action->trigger();
                return true;
            }
        }
        return false;
    }

    // What is in front

    template <typename Page>
    Page *front()
    {
        return qobject_cast<Page *>(views().tabs->currentWidget());
    }

    /// A canvas that is shown; null when there is none.
    Canvas *anyCanvas()
    {
        QList<Canvas *> canvases;
        if (views().tileEditor->tileSet())
            canvases.append(views().tileEditor->canvas());
        if (views().spriteEditor->sprites())
            canvases.append(views().spriteEditor->canvas());
        if (auto *page = front<ImageEditor::View>())
            canvases.append(page->canvas());
        Canvas *canvas = any(canvases);
        if (canvas)
            bringToFront(canvas);
        return canvas;
    }
    /// Shows the dock that a widget is in.
    void bringToFront(QWidget *widget)
    {
        for (QWidget *parent = widget; parent; parent = parent->parentWidget()) {
            if (auto *dock = qobject_cast<QDockWidget *>(parent)) {
                dock->show();
                dock->raise();
                QCoreApplication::processEvents();
            }
        }
    }
    AnimationEditor::EditorWidget *animationEditor()
    {
        AnimationEditor::EditorWidget *editor = nullptr;
        if (auto *page = front<BlockEditor::View>())
            editor = page->editor();
        else if (auto *bankPage = front<SpriteEditor::View>())
            editor = bankPage->editor();
        return editor && editor->animation() ? editor : nullptr;
    }

    MainWindow &m_window;

private:
    QRandomGenerator m_random;
};
