#pragma once

#include <QListWidget>

/// A list whose items are ticked rather than selected. Space ticks the current item, and so does a
/// click anywhere on it.
class CheckList : public QListWidget
{
    Q_OBJECT

public:
    explicit CheckList(QWidget *parent = nullptr);

    /// Appends an item and returns its index.
    int addCheck(const QString &text, bool checked = false);

    [[nodiscard]] bool isChecked(int index) const;

    /// Emits checkChanged() when the state changes; ignores an index outside the list.
    void setChecked(int index, bool checked);

signals:
    void checkChanged(int index, bool checked);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
};
