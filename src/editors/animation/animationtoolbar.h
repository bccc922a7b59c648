#pragma once

#include <QSize>
#include <QToolBar>

class FlowLayout;
class QLineEdit;
class QSpinBox;

namespace AnimationEditor {

/// Shows and edits what an animation is called, its size in cells and its frame delay.
///
/// The signals tell what the user changed; the setters emit nothing.
class AnimationToolBar : public QToolBar
{
    Q_OBJECT

public:
    static constexpr int MaximumSide = 16;
    static constexpr int MaximumDelay = 50;

    explicit AnimationToolBar(const QString &widthToolTip, const QString &heightToolTip, QWidget *parent = nullptr);

    void setName(const QString &name);
    void setFrameSize(QSize size);
    void setDelay(int delay);

signals:
    void nameChanged(const QString &name);
    void widthChanged(int width);
    void heightChanged(int height);
    void delayChanged(int delay);

protected:
    /// Puts a control, with a label before it unless the label is empty, at the end or between the name and
    /// the size. The label stands for the control in assistive technology.
    enum Place { AtEnd, AfterName };
    void addControl(const QString &label, QWidget *control, Place place = AtEnd);

private:
    QSpinBox *addNumber(const QString &label, const QString &toolTip, int minimum, int maximum);

    FlowLayout *m_rows = nullptr; ///< of all controls
    QLineEdit *m_name;
    QSpinBox *m_width;
    QSpinBox *m_height;
    QSpinBox *m_delay;
};

} // namespace AnimationEditor
