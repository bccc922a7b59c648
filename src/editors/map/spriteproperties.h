#pragma once

#include "model/map.h"

#include <QWidget>

class QCheckBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace MapEditor {

/// A form for what is known of a placed sprite apart from its place.
class SpriteProperties : public QWidget
{
    Q_OBJECT

public:
    explicit SpriteProperties(QWidget *parent = nullptr);

    /// Shows a sprite, without a signal.
    void setSprite(const Map::PlacedSprite &sprite);
    [[nodiscard]] const Map::PlacedSprite &sprite() const { return m_sprite; }

signals:
    /// A field was edited; the sprite is complete.
    void spriteEdited(Map::PlacedSprite sprite);

private:
    /// What a field shows is kept in a member of the sprite.
    QCheckBox *addCheckBox(QFormLayout *form, const QString &text, bool Map::PlacedSprite::*field);
    QSpinBox *addSpinBox(QFormLayout *form, const QString &label, int maximum, int Map::PlacedSprite::*field);
    template <typename Value>
    void edit(Value Map::PlacedSprite::*field, const Value &value);

    Map::PlacedSprite m_sprite;
    bool m_loading = false;
    QLineEdit *m_name;
    QCheckBox *m_mirror;
    QCheckBox *m_flip;
    QCheckBox *m_rotate;
    QSpinBox *m_startFrame;
    QSpinBox *m_initialDelay;
    QSpinBox *m_repeatDelay;
    QSpinBox *m_paletteOffset;
};

} // namespace MapEditor
