#pragma once

#include "model/palette.h"
#include "model/project.h"
#include "ui/dockwidget.h"
#include "undo/editrecorder.h"

class PaletteEditor;
class PaletteTools;
class QAction;
class QComboBox;
class QMenu;

/// The palette dock: the palette editor, below a chooser of all palettes of the project.
///
/// The chooser is how a palette is reached that nothing on the screen uses; its menu renames, copies
/// and deletes the palette that is shown.
class PaletteWindow : public DockWidget
{
    Q_OBJECT

public:
    explicit PaletteWindow(QWidget *parent = nullptr);

    /// Where steps for a palette go when its entries change places.
    void setUndoStackProvider(const EditRecorder::StackProvider &stackFor);
    /// The switch of the clock by which colours go round.
    void setCyclingAction(QAction *action);
    /// Offers the palettes of a project in the chooser; null empties it.
    void setProject(const QPointer<Project> &project);
    Palette *palette() const { return m_palette; }
    PaletteEditor *editor() const { return m_editor; }
    /// "Rename", "Copy" and "Delete", for the palette that is shown.
    QMenu *paletteMenu() const { return m_menu; }

public slots:
    /// Shows a palette; null shows the placeholder.
    void setPalette(const QPointer<Palette> &palette);
    /// Gives the selected entries a colour.
    void colourChanged(const QColor &color, bool priority);
    void selectionChanged(int first, int last);
    void createGradient();
    /// Brings the chooser up to date after a palette was deleted.
    void refreshChooser();

signals:
    void paletteChanged();
    /// A palette was chosen in the chooser, and is to be shown.
    void paletteChosen(QUuid id);
    void copyRequested(QUuid id);
    void deleteRequested(QUuid id);
    /// Something could not be done, and why.
    void refused(const QString &reason);

private:
    [[nodiscard]] bool isBlack() const;
    void buildMenu();
    void startRenaming();
    void finishRenaming();
    void updateTitle();
    void follow(const QPointer<Palette> &palette);

    QPointer<Project> m_project;
    QPointer<Palette> m_palette;
    QComboBox *m_chooser;
    QMenu *m_menu;
    PaletteEditor *m_editor;
    PaletteTools *m_tools;
    bool m_renaming = false;
};
