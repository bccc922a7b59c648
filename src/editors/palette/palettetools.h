#pragma once

#include "model/project.h"
#include "undo/editrecorder.h"
#include "undo/paletteorder.h"

#include <QObject>
#include <QPointer>

class ColourCyclesDialog;
class PaletteEditor;
class QAction;
class QMenu;

/// What is done with the selected entries of a palette beyond giving them colours: they are put into another order,
/// which all pictures that use them follow, and it is told which are used, and which are equal.
class PaletteTools : public QObject
{
    Q_OBJECT

public:
    /// Adds entries to the end of a menu, for the selection of an editor.
    PaletteTools(PaletteEditor *editor, QMenu *menu, QObject *parent);

    void setProject(const QPointer<Project> &project);
    /// The switch of the clock by which colours go round.
    void setCyclingAction(QAction *action) { m_cyclingAction = action; }
    void setUndoStackProvider(const EditRecorder::StackProvider &stackFor) { m_stackFor = stackFor; }

    enum Order { ByHue, ByBrightness, Reversed, EndsExchanged };
    /// Puts the selected entries into an order, as far as pictures let them move.
    void sort(Order order, const QString &text);
    /// Lets the selected entries begin at another one, in front of or behind those that lie between.
    void moveSelection(int first);

signals:
    /// Nothing could be done, and why.
    void refused(const QString &reason);

private:
    enum Mark { Unused, Equal };

    /// Lets entries of the palette change places, with all pictures, as one step.
    void reorder(const QString &text, const PaletteOrder &moves);
    void refuseMoves();
    void mark(Mark mark);
    void editCycles();
    [[nodiscard]] QList<int> ordered(const QList<int> &entries, Order order) const;

    PaletteEditor *m_editor;
    QPointer<Project> m_project;
    EditRecorder::StackProvider m_stackFor;
    QPointer<QAction> m_cyclingAction;
    QPointer<ColourCyclesDialog> m_cyclesDialog;
};
