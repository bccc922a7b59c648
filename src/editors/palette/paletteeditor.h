#pragma once

#include "model/palette.h"

#include <QPointer>
#include <QWidget>

class ColourEditor;
class PaletteGrid;
class QAction;
class QToolButton;

/// Edits the colours of a palette: its grid, the colour editor for the selected run of entries, and
/// the darken, lighten and gradient tools. Every change goes through the palette's own operations,
/// so it can be undone. The palette dock and the tile editor both hold one.
class PaletteEditor : public QWidget
{
    Q_OBJECT

public:
    explicit PaletteEditor(QWidget *parent = nullptr);

    Palette *palette() const { return m_palette; }
    PaletteGrid *grid() const { return m_grid; }
    int first() const { return m_first; }
    int last() const { return m_last; }

public slots:
    /// Null disables the editor.
    void setPalette(const QPointer<Palette> &palette);
    /// Selects one entry (0–255) as a click on it does.
    void setSelectedIndex(int index);
    /// Selects a run of entries (0–255) and loads the colour editor with the first of them.
    void setSelection(int first, int last);
    /// Gives the whole selection a colour.
    void applyColour(const QColor &colour, bool priority);
    /// Spreads the colours between the two ends of the selection over it; the ends, and every entry's
    /// priority, stay. Nothing happens between equal colours, or with nothing in between.
    void createGradient();
    /// The same in even steps: every channel takes the nearest of its eight levels.
    void createEvenGradient();

signals:
    /// Another palette, or none, is shown.
    void paletteChanged();
    /// A colour was applied to the selection.
    void colourChanged(QColor colour, bool priority);
    void selectionChanged(int first, int last);

private:
    QAction *addTool(const char *name, const QString &icon, const QString &text, const QString &toolTip);
    QToolButton *buttonFor(QAction *tool);
    void updateTools();
    void loadSelection();

    QPointer<Palette> m_palette;
    PaletteGrid *m_grid;
    ColourEditor *m_editor;
    QAction *m_darken;
    QAction *m_lighten;
    QAction *m_gradient;
    int m_first = 0;
    int m_last = 0;
    bool m_hasSelection = false;
};
