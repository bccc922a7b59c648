#pragma once

#include <QIcon>
#include <QLabel>
#include <QTimer>

#include <functional>

/// Says in the status bar that the open project has changes which are not saved, and puts a dot on the window's icon,
/// which task bars show.
class UnsavedMark : public QLabel
{
    Q_OBJECT

public:
    /// Asks again and again whether there is something to save, which must not cost much.
    UnsavedMark(std::function<bool()> isModified, QWidget *window);

    [[nodiscard]] bool isShown() const { return m_isModified; }

public slots:
    void look();

private:
    std::function<bool()> m_ask;
    QWidget *m_window;
    QIcon m_plainIcon; ///< of the window
    QTimer m_timer;
    bool m_isModified = false;
};
