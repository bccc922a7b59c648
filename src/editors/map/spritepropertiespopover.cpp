#include "editors/map/spritepropertiespopover.h"

#include "editors/map/spriteproperties.h"

#include <QKeyEvent>

namespace MapEditor {

SpritePropertiesPopover::SpritePropertiesPopover(QWidget *parent) : Popover(parent), m_properties(new SpriteProperties)
{
    setContent(m_properties);
    connect(m_properties, &SpriteProperties::spriteEdited, this, &SpritePropertiesPopover::spriteEdited);
}

const Map::PlacedSprite &SpritePropertiesPopover::sprite() const
{
    return m_properties->sprite();
}

void SpritePropertiesPopover::setSprite(Map::PlacedSprite sprite)
{
    m_properties->setSprite(sprite);
}

bool SpritePropertiesPopover::event(QEvent *event)
{
    // plain keys are for the fields, not for the tools of the editor behind
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (!key->matches(QKeySequence::Cancel)
            && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))) {
            event->accept();
            return true;
        }
    }
    return Popover::event(event);
}

} // namespace MapEditor
