#pragma once

#include <QObject>
#include <QPersistentModelIndex>

class QAbstractItemView;

/// Tells when the current item of a view is pressed again, with the mouse, Enter or Space, which changes nothing in the
/// view but may mean something to who listens: take this one, once more.
class RepeatedPress : public QObject
{
    Q_OBJECT

public:
    /// Watches a view, which becomes its parent.
    explicit RepeatedPress(QAbstractItemView *view);

signals:
    void pressedAgain(const QModelIndex &index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAbstractItemView *m_view;
    QPersistentModelIndex m_before; ///< the current item before the press
};
