#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;

namespace MapEditor {

class PaintDesk;
class View;

/// What the Map menu does with the map editor in front, for which it is enabled.
class MapCommands : public QObject
{
    Q_OBJECT

public:
    explicit MapCommands(QObject *parent = nullptr);

    /// In the order of the menu, separators among them.
    [[nodiscard]] const QList<QAction *> &actions() const { return m_actions; }
    /// Null when something else is in front.
    void setView(const QPointer<View> &view);

private:
    struct Entry
    {
        const char *name;
        const char *icon;
        QKeySequence keys = {};
        void (PaintDesk::*run)() = nullptr;
    };

    QAction *add(const Entry &entry, const QString &text, const QString &toolTip);
    void addSeparator();

    QList<QAction *> m_actions;
    QAction *m_overview;
    QPointer<PaintDesk> m_desk;
};

} // namespace MapEditor
