#pragma once

#include "model/colourcycle.h"
#include "model/project.h"

#include <QDialog>
#include <QPointer>

class PaletteEditor;
class QAction;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;

/// In which the ranges of a palette are made and changed whose colours go round. It stays open beside the palette
/// editor, whose palette it shows and whose selection becomes a new range; what is changed is seen at once.
class ColourCyclesDialog : public QDialog
{
    Q_OBJECT

public:
    /// The action starts and stops the clock; it may be null.
    ColourCyclesDialog(PaletteEditor *editor, QAction *cycling, QWidget *parent = nullptr);

    void setProject(const QPointer<Project> &project);

private:
    void readPalette();
    void add();
    void remove();
    /// Shows a range in the fields, or none, and in the palette's grid.
    void showCycle();
    void showList(int row);
    void updateAdd();
    /// Takes over what is in the fields.
    void store();
    void write(const ColourCycles::List &cycles);
    [[nodiscard]] ColourCycle selectedEntries() const;
    [[nodiscard]] QString textOf(const ColourCycle &cycle) const;

    PaletteEditor *m_editor;
    QPointer<Project> m_project;
    ColourCycles::List m_cycles;
    QListWidget *m_list;
    QPushButton *m_add;
    QPushButton *m_remove;
    QSpinBox *m_first;
    QSpinBox *m_last;
    QSpinBox *m_frames;
    QComboBox *m_direction;
    QLabel *m_speed;
    bool m_showing = false; ///< fields are set, not edited
};
