#pragma once

#include <QCursor>
#include <QObject>
#include <QPoint>

#include <optional>

namespace MapEditor {

class MapGrid;

/// Moves the view of a grid besides its scroll bars: drags it while Space is held, and zooms with Ctrl and the wheel
/// around the pointer. Of these events the grid hears nothing.
class MapNavigator : public QObject
{
    Q_OBJECT

public:
    /// A child of the grid.
    explicit MapNavigator(MapGrid *grid);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isActive() const { return m_ready || m_grabbed; }
    /// Takes note of the key, and shows the hand that fits.
    void setReady(bool ready);
    void grab(QPoint point);
    void drag(QPoint point);

    MapGrid *m_grid;
    bool m_ready = false; ///< Space is held
    std::optional<QPoint> m_grabbed; ///< the point of the grid where the button was pressed
    QPoint m_scroll; ///< position at the press
    bool m_cursorShown = false; ///< that of the hand
    QCursor m_cursorBefore;
};

} // namespace MapEditor
