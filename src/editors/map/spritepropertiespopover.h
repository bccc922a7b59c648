#pragma once

#include "model/map.h"
#include "ui/popover.h"

namespace MapEditor {

class SpriteProperties;

/// The properties of a placed sprite, beside the sprite.
class SpritePropertiesPopover : public Popover
{
    Q_OBJECT

public:
    explicit SpritePropertiesPopover(QWidget *parent);

    [[nodiscard]] const Map::PlacedSprite &sprite() const;

public slots:
    void setSprite(Map::PlacedSprite sprite);

signals:
    void spriteEdited(Map::PlacedSprite sprite);

protected:
    bool event(QEvent *event) override;

private:
    SpriteProperties *m_properties;
};

} // namespace MapEditor
