#pragma once

#include "app/documenttabview.h"
#include "app/mainwindow.h"
#include "model/palette.h"
#include "model/project.h"
#include "support/editorinput.h"

#include <QtGui>

#include <functional>
#include <memory>
#include <vector>

/// Chance, the mouse, and a list of things to do: what somebody needs who does random things in the main
/// window. What there is to do is added by the classes derived from it, each for one kind of work.
class RandomHands
{
public:
    enum Effect {
        None, ///< changes what is shown, not what is saved
        Undoable, ///< every change is on an undo stack
        Lasting, ///< changes that undo does not know
    };

    RandomHands(MainWindow &window, quint32 seed) : m_window(window), m_random(seed) { }

    [[nodiscard]] int number(int bound) { return int(m_random.bounded(quint32(bound))); }

    /// Does one thing that is possible now, and returns what kind of thing it was.
    virtual Effect act() = 0;

protected:
    /// Adds something to do; run returns false when it cannot be done now.
    void add(const char *name, Effect effect, const std::function<bool()> &run)
    {
        m_actions.push_back({name, effect, run});
    }
    /// Adds what is done with the thing that find returns, when it returns one, Often times as often as others.
    template <int Often = 1, typename Find, typename Run>
    void addFor(Find find, const char *name, Effect effect, Run run)
    {
        for (int repeat = 0; repeat < Often; ++repeat) {
            add(name, effect, [find, run] {
                auto *found = find();
                if (found)
                    run(*found);
                return found != nullptr;
            });
        }
    }

    Project &project() { return *m_window.projectController()->project(); }
    const DocumentViews &views() { return m_window.views(); }
    /// The page in front, when it is one of this kind.
    template <typename Page>
    Page *front()
    {
        return qobject_cast<Page *>(views().tabs->currentWidget());
    }

    bool chance() { return number(2) == 1; }
    /// One entry of a list, or a default value when it is empty.
    template <typename List>
    typename List::value_type any(const List &list)
    {
        return list.empty() ? typename List::value_type() : list[typename List::size_type(number(int(list.size())))];
    }
    /// Does one of several things.
    template <typename... Choices>
    void oneOf(const Choices &...choices)
    {
        any(std::vector<std::function<void()>>{choices...})();
    }
    /// The id of one of the project's assets of a kind; null when there is none.
    template <typename List>
    QUuid anyId(List (Project::*assets)() const)
    {
        const auto asset = any((project().*assets)());
        return asset ? asset->id() : QUuid();
    }

    /// Triggers the actions of a text that a menu or another widget has.
    static void choose(const QWidget *widget, const QString &text)
    {
        for (QAction *action : widget->actions()) {
            if (action->text() == text)
                action->trigger();
        }
    }
    /// Shows the dock that a widget is in.
    static void bringToFront(QWidget *widget)
    {
        for (; widget; widget = widget->parentWidget()) {
            if (auto *dock = qobject_cast<QDockWidget *>(widget)) {
                dock->show();
                dock->raise();
                QCoreApplication::processEvents();
            }
        }
    }
    void click(QWidget *widget, QPoint at, Qt::MouseButton button = Qt::LeftButton) { drag(widget, at, 0, button); }
    void drag(QWidget *widget, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {})
    {
        const QPoint start(number(std::max(widget->width(), 1)), number(std::max(widget->height(), 1)));
        drag(widget, start, number(4), button, modifiers);
    }
    /// Drags what these data describe from one point of a widget to another.
    static void drop(QWidget &widget, QPoint from, QPoint to, QMimeData *data, Qt::KeyboardModifiers modifiers = {})
    {
        EditorInput::drop(widget, from, to, *std::unique_ptr<QMimeData>(data), modifiers);
    }

    struct Action
    {
        const char *name;
        Effect effect;
        std::function<bool()> run;
    };

    MainWindow &m_window;
    std::vector<Action> m_actions;
    QString m_lastAction; ///< what was done last; an action may say it more exactly

private:
    static void mouse(QWidget *widget, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons,
                      Qt::KeyboardModifiers modifiers)
    {
        QMouseEvent event(type, at, widget->mapToGlobal(at), button, buttons, modifiers);
        QApplication::sendEvent(widget, &event);
    }
    void drag(QWidget *widget, QPoint at, int moves, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {})
    {
        mouse(widget, QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton, modifiers);
        mouse(widget, QEvent::MouseButtonPress, at, button, button, modifiers);
        for (; moves > 0; --moves) {
            at = {number(widget->width() + 20) - 10, number(widget->height() + 20) - 10}; // it may leave the widget
            mouse(widget, QEvent::MouseMove, at, Qt::NoButton, button, modifiers);
        }
        mouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton, modifiers);
    }

    QRandomGenerator m_random;
};
