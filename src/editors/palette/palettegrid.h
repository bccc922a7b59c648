#pragma once

#include "model/palette.h"

#include <QPointer>
#include <QSet>
#include <QWidget>

#include <functional>
#include <optional>

class WidgetCells;

/// The 256 colours of a palette in 16 rows, of which a run of neighbours in palette order is selected.
class PaletteGrid : public QWidget
{
    Q_OBJECT

public:
    explicit PaletteGrid(QWidget *parent = nullptr);

    void setPalette(const QPointer<Palette> &palette);
    /// The palette's colour, transparent black without a palette.
    QColor colour(int index) const;

    int firstSelected() const { return m_first; }
    int lastSelected() const { return m_last; }
    /// Selects a run without a signal; first must not be behind last.
    void setSelection(int first, int last);

    /// Lets people drag the selected entries, or another one, to a new place with Ctrl.
    void offerMoves() { m_offersMoves = true; }
    /// Adds a line to the tool tip of every entry.
    void setNotes(const std::function<QString(int entry)> &notes) { m_notes = notes; }
    /// Marks entries until others are marked or another palette is shown; marking the same ones unmarks them.
    void setMarks(const QSet<int> &entries);
    [[nodiscard]] const QSet<int> &marks() const { return m_marks; }

public slots:
    void updateColour(int index, const QColor &colour);

signals:
    void selectionChanged(int first, int last);
    /// The selected entries are to begin at another one, and those between to make room for them.
    void moveRequested(int first);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    void updateRange();
    /// Where the dragged entries would begin.
    [[nodiscard]] int moveTarget() const;
    void grabAt(int index);

    void tellCells();
    [[nodiscard]] QString textOf(int index) const;

    QPointer<Palette> m_palette;
    WidgetCells *m_cells = nullptr;
    QPoint m_anchor;
    QPoint m_current;
    int m_first = 0;
    int m_last = 0;
    bool m_dragging = false;
    bool m_offersMoves = false;
    std::optional<int> m_grabbed; ///< of the selected entries that are dragged, the one under the pointer
    QPoint m_pointer;
    QSet<int> m_marks;
    std::function<QString(int)> m_notes;
};
