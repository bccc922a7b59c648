#include "editors/palette/coloureditorpopover.h"

#include "editors/palette/coloureditor.h"

ColourEditorPopover::ColourEditorPopover(QWidget *parent) : Popover(parent), m_editor(new ColourEditor)
{
    setContent(m_editor);
    connect(m_editor, &ColourEditor::colourChanged, this, [this](const QColor &colour, bool priority) {
        emit colourChanged(colour, priority);
        emit confirmColourChanged();
        hide();
    });
    connect(m_editor, &ColourEditor::cancelled, this, [this] {
        emit cancelled();
        hide();
    });
}

void ColourEditorPopover::setColour(const QColor &colour, bool priority)
{
    m_editor->setColour(colour, priority);
}
