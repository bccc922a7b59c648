#pragma once

#include "app/commands/commandpalette.h"
#include "app/commands/shortcutsfile.h"
#include "app/documentviews.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>

class DocumentController;
class Project;
class QAction;
class QMainWindow;
class ShortcutsDialog;

/// What people reach by keys: keeps those that they chose, and shows them and the palette of commands.
class CommandDesk : public QObject
{
    Q_OBJECT

public:
    /// What else than commands the palette offers: where it is, and what opens it.
    struct Sources
    {
        std::function<Project *()> project;
        DocumentController *documents;
    };

    CommandDesk(QMainWindow *window, const DocumentViews &views, Sources sources);

    /// Reads and applies the kept keys; a damaged file is told by failed().
    void load(const QString &file);

public slots:
    void showShortcuts();
    void showPalette();

signals:
    /// A text for the user, its title, and why.
    void failed(const QString &text, const QString &title, const QString &reason);

private:
    void choose(const Commands::Choices &choices);
    /// Lets also the editors tell their commands that were not opened yet.
    void meetAllEditors();
    [[nodiscard]] QList<CommandPalette::Entry> commandEntries() const;
    void addAssets(QList<CommandPalette::Entry> &entries) const;
    void addTiles(QList<CommandPalette::Entry> &entries);
    /// Shows a tile; the map in front is painted with it, or else the tile editor comes to the front.
    void chooseTile(int index);
    /// The one of a command's actions that is meant now: that of the editor which has the keyboard, is in front, or can
    /// be seen; null for none.
    [[nodiscard]] QAction *meantOf(const QString &command) const;

    QMainWindow *m_window;
    DocumentViews m_views;
    Sources m_sources;
    ShortcutsFile m_file{QString()};
    QPointer<ShortcutsDialog> m_dialog;
    QPointer<CommandPalette> m_palette;
    QStringList m_recent; ///< ids of what was used, the last one first
    bool m_metAll = false;
};
