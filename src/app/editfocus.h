#pragma once

#include "app/documentviews.h"
#include "model/project.h"
#include "undo/editrecorder.h"

#include <QObject>
#include <QPointer>
#include <QUuid>
#include <QWidget>

#include <optional>

class EditTarget;
class QUndoGroup;

namespace MapEditor {
class View;
}

/// Follows the keyboard and the tabs to the editor that the user works in: the Edit menu's clipboard
/// entries go to it, undo and redo to the stack of its asset, and the map toolbar serves it if it is a
/// map editor.
class EditFocus : public QObject
{
    Q_OBJECT

public:
    EditFocus(const DocumentViews &views, QUndoGroup *undoGroup, EditRecorder::StackProvider stackFor,
              QObject *parent = nullptr);

    /// The open project; without one nothing can be edited.
    void setProject(const QPointer<Project> &project);

    /// Looks again at what the docks show: without its asset, or closed, a dock is no longer worked in.
    void refresh();

    /// The editor that the user works in, as the target of the clipboard commands; null when it is none.
    [[nodiscard]] EditTarget *target() const;

private:
    /// Makes the page in front the active one.
    void followTab();
    void followKeyboard(QWidget *widget);
    /// The asset that a dock edits; none when it shows none, or is no editor.
    [[nodiscard]] std::optional<QUuid> assetIn(const QWidget *dock) const;
    void activate(QWidget *editor, const QUuid &documentId);
    void activateNone();
    void serveMapEditor(QWidget *page);
    void connectEditMenu();

    DocumentViews m_views;
    QUndoGroup *m_undoGroup;
    EditRecorder::StackProvider m_stackFor;
    QPointer<Project> m_project;
    QPointer<QWidget> m_active; ///< the editor that the user works in
    /// The map editor that the map toolbar is attached to.
    QPointer<MapEditor::View> m_mapEditor;
};
