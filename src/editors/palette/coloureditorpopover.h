#pragma once

#include "ui/popover.h"

#include <QColor>

class ColourEditor;

/// The colour editor in a popover beside the colour that is edited; closes with OK and cancel.
class ColourEditorPopover : public Popover
{
    Q_OBJECT

public:
    explicit ColourEditorPopover(QWidget *parent);

    void setColour(const QColor &colour, bool priority);

signals:
    void colourChanged(QColor colour, bool priority);
    /// The user confirmed; follows colourChanged().
    void confirmColourChanged();
    void cancelled();

private:
    ColourEditor *m_editor;
};
