#pragma once

#include <QLabel>

#include <functional>

/// A quiet text over an editor in which there is nothing yet: the next step. It takes neither mouse nor keyboard, and
/// goes as soon as there is something.
///
/// It asks when what lies below is painted anew, which is when something may have changed there.
class EmptyHint final : public QLabel
{
    Q_OBJECT

public:
    /// What is to be said of the editor as it is now; empty when there is nothing to say. Asked often.
    using Text = std::function<QString()>;

    /// A child of the widget that it lies over.
    EmptyHint(QWidget *over, Text text, Qt::Alignment place = Qt::AlignCenter);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void ask();
    void place();

    QWidget *m_over;
    Text m_wanted;
    Qt::Alignment m_place;
};
