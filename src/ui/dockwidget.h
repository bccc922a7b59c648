#pragma once

#include <QDockWidget>

class QLabel;
class QStackedWidget;

/// A dock that shows a short text ("No palette selected") until it has something to show.
///
/// activate() switches to the content page, deactivate() back to the placeholder; a new dock is not
/// active. The object name that a subclass sets identifies the dock in the stored window layout.
class DockWidget : public QDockWidget
{
    Q_OBJECT

public:
    explicit DockWidget(const QString &title, const QString &placeholder, QWidget *parent = nullptr);

    /// The widget of the content page; the dock takes it and deletes the one before.
    void setContent(QWidget *content);
    [[nodiscard]] QWidget *content() const { return m_content; }

    void setPlaceholderText(const QString &text);
    [[nodiscard]] QString placeholderText() const;

    /// Whether the content page is the one shown (whether or not the dock itself is visible).
    [[nodiscard]] bool isActive() const;

public slots:
    void setActive(bool active);
    void activate() { setActive(true); }
    void deactivate() { setActive(false); }

signals:
    /// The page changed.
    void activeChanged(bool active);

protected:
    bool event(QEvent *event) override;

private:
    QStackedWidget *m_pages;
    QLabel *m_placeholder;
    QWidget *m_content = nullptr;
};
