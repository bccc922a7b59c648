#pragma once

#include <QColor>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class RgbEditor;

/// Edits one Next colour and its priority: sliders, the colour before and after, OK and cancel.
///
/// Nothing is applied before OK; cancel goes back to the colour that was loaded.
class ColourEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ColourEditor(QWidget *parent = nullptr);

    /// Loads the initial colour.
    void setColour(const QColor &colour, bool priority);
    /// The edited colour.
    QColor colour() const { return m_colour; }
    bool priority() const;

public slots:
    void rgbValueChanged(QColor colour);
    void okClick();
    void cancelClick();
    void priorityChanged(bool checked);
    /// To the nearest darker or lighter colour that the hardware can tell apart, if there is one.
    void darken();
    void lighten();

signals:
    void colourChanged(QColor colour, bool priority);
    void cancelled();

private:
    void load(const QColor &colour);
    void showState();

    RgbEditor *m_rgb;
    QLabel *m_initialSwatch;
    QLabel *m_editedSwatch;
    QCheckBox *m_priority;
    QPushButton *m_ok;
    QColor m_initialColour = Qt::black;
    bool m_initialPriority = false;
    QColor m_colour = Qt::black;
};
