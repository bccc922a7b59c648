#pragma once

#include "app/dialogs/filechooser.h"
#include "model/project.h"

#include <QKeySequence>
#include <QMenu>
#include <QPointer>
#include <QUuid>

#include <functional>

/// The base of the menus whose commands depend on the open project.
///
/// A menu owns its actions and builds its dialogs when they are first used. What a person asks for, the
/// rest of the shell learns from the menu's signals.
class ProjectMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ProjectMenu(const QString &title, QWidget *parent = nullptr);

    [[nodiscard]] Project *project() const { return m_project; }

    /// Who answers the menu's questions for files; runFileDialog() at first.
    void setFileChooser(const FileChooser &chooser) { m_fileChooser = chooser; }
    /// Who knows whether an asset can be imported again; nobody at first.
    void setImportAgainCheck(const std::function<bool(const QUuid &)> &canImport) { m_canImportAgain = canImport; }

public slots:
    /// The open project, or null.
    void setProject(const QPointer<Project> &project);
    /// Looks again whether the active asset can be imported again.
    void refreshImportAgain();

signals:
    /// Something that was asked for could not be done: a text for the user, its title, and why.
    void failed(const QString &text, const QString &title, const QString &reason);
    /// The active asset is to be brought up to date with the file that it was made of.
    void importAgainRequested(const QUuid &id);
    /// An asset of that name was written to a file.
    void exported(const QString &asset, const QString &filePath);

protected:
    /// Enables what can be done now; called whenever the project or the active asset changes.
    virtual void updateActions() = 0;

    /// Appends the entry of a command of that name, which calls a slot, or emits a signal, of the menu.
    template <typename Menu, typename Slot>
    QAction *addCommand(Menu *menu, const QString &name, const QString &text, Slot slot,
                        const QList<QKeySequence> &keys = {}, const QString &icon = {})
    {
        QAction *action = newAction(name, text, keys, icon);
        connect(action, &QAction::triggered, menu, slot);
        return action;
    }

    /// Appends the entry that imports the active asset again, in a group of its own.
    void addImportAgain(const QString &name, const std::function<QUuid()> &activeAsset);

    /// The menu's dialog of a kind, made when it is first asked for; what is accepted in it goes to a slot
    /// or signal of the menu.
    template <typename Menu, typename Dialog, typename Slot>
    Dialog *lazily(QPointer<Dialog> &dialog, Menu *menu, Slot slot) const
    {
        if (!dialog) {
            dialog = new Dialog(dialogParent());
            connect(dialog, &Dialog::accepted, menu, slot);
        }
        return dialog;
    }

    /// Makes an asset the active one of its kind, or none; there is none any more when it is deleted.
    template <typename Asset>
    void setActive(QPointer<Asset> &active, const QPointer<Asset> &asset)
    {
        if (active)
            active->disconnect(this);
        active = asset;
        if (active)
            connect(active, &QObject::destroyed, this, [this] { updateActions(); });
        updateActions();
        refreshImportAgain();
    }

    // The file that a person chooses; empty when it is none.
    [[nodiscard]] QString fileToOpen(const QString &title, const QStringList &nameFilters) const;
    [[nodiscard]] QString fileToSave(const QString &title, const QString &asset, const QStringList &nameFilters,
                                     const QString &defaultSuffix) const;
    [[nodiscard]] QString chooseFile(const FileRequest &request) const;
    [[nodiscard]] FileChooser fileChooser() const { return m_fileChooser; }
    /// Tells the user of a file that was written, or could not be.
    void reportExport(bool written, const QString &asset, const QString &filePath);

    /// The window over which the menu's dialogs stand.
    [[nodiscard]] QWidget *dialogParent() const;

private:
    QAction *newAction(const QString &name, const QString &text, const QList<QKeySequence> &keys, const QString &icon);

    QPointer<Project> m_project;
    FileChooser m_fileChooser = runFileDialog;
    QAction *m_again = nullptr;
    std::function<QUuid()> m_activeAsset;
    std::function<bool(const QUuid &)> m_canImportAgain = [](const QUuid &) { return false; };
};
