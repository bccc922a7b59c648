#pragma once

#include <QWidget>

class QToolButton;
class QVBoxLayout;

/// A part of a window that can be folded away: a heading with an arrow, and below it the content
/// while the section is expanded. It starts collapsed.
class ExpandableSection : public QWidget
{
    Q_OBJECT

public:
    explicit ExpandableSection(const QString &title, QWidget *parent = nullptr);

    /// The widget that is shown while expanded; the section takes it and deletes the one before.
    void setContent(QWidget *content);
    [[nodiscard]] QWidget *content() const { return m_content; }

    [[nodiscard]] bool isExpanded() const;

public slots:
    void setExpanded(bool expanded);

signals:
    void expandedChanged(bool expanded);

private:
    void showState(bool expanded);

    QToolButton *m_heading;
    QVBoxLayout *m_layout;
    QWidget *m_content = nullptr;
};
