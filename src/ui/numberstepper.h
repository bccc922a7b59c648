#pragma once

#include <QWidget>

class QLabel;
class QSpinBox;
class QToolButton;

/// Chooses a number of a range: a field to type in between a button back and a button forward, and
/// the last number of the range after it ("12 of 256").
class NumberStepper : public QWidget
{
    Q_OBJECT

public:
    explicit NumberStepper(QWidget *parent = nullptr);

    [[nodiscard]] int value() const;

    /// minimum to maximum; the value is moved inside, and a maximum below minimum is taken for minimum.
    void setRange(int minimum, int maximum);

    /// What the number counts ("Tile"), for tool tips and assistive technology.
    void setItemName(const QString &name);

    /// Shows the index, counting from 0, behind the number, which is to count from 1.
    void showIndex();

public slots:
    void setValue(int value);

signals:
    void valueChanged(int value);

private:
    void updateState();

    QToolButton *m_back;
    QSpinBox *m_number;
    QLabel *m_last;
    QToolButton *m_forward;
};
