#include "editors/map/spriteproperties.h"

#include "model/assetname.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSpinBox>

namespace MapEditor {

using Sprite = Map::PlacedSprite;

SpriteProperties::SpriteProperties(QWidget *parent) : QWidget(parent), m_name(new QLineEdit)
{
    auto *form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(tr("Name"), m_name);
    m_name->setMaxLength(AssetName::MaxLength);
    connect(m_name, &QLineEdit::textChanged, this, [this](const QString &name) { edit(&Sprite::name, name); });
    m_mirror = addCheckBox(form, tr("Mirror"), &Sprite::mirror);
    m_flip = addCheckBox(form, tr("Flip"), &Sprite::flip);
    m_rotate = addCheckBox(form, tr("Rotate"), &Sprite::rotate);
    m_startFrame = addSpinBox(form, tr("Start frame"), 255, &Sprite::startFrame);
    m_initialDelay = addSpinBox(form, tr("Initial delay"), 9999, &Sprite::initialDelay);
    m_repeatDelay = addSpinBox(form, tr("Repeat delay"), 9999, &Sprite::repeatDelay);
    m_paletteOffset = addSpinBox(form, tr("Palette offset"), 15, &Sprite::paletteOffset);
    setFocusProxy(m_name);
}

QCheckBox *SpriteProperties::addCheckBox(QFormLayout *form, const QString &text, bool Sprite::*field)
{
    auto *checkBox = new QCheckBox(text);
    form->addRow(QString(), checkBox);
    connect(checkBox, &QCheckBox::toggled, this, [this, field](bool checked) { edit(field, checked); });
    return checkBox;
}

QSpinBox *SpriteProperties::addSpinBox(QFormLayout *form, const QString &label, int maximum, int Sprite::*field)
{
    auto *spinBox = new QSpinBox;
    spinBox->setRange(0, maximum);
    form->addRow(label, spinBox);
    connect(spinBox, &QSpinBox::valueChanged, this, [this, field](int value) { edit(field, value); });
    return spinBox;
}

template <typename Value>
void SpriteProperties::edit(Value Sprite::*field, const Value &value)
{
    if (m_loading)
        return;
    m_sprite.*field = value;
    emit spriteEdited(m_sprite);
}

void SpriteProperties::setSprite(const Sprite &sprite)
{
    const QScopedValueRollback loading(m_loading, true);
    m_sprite = sprite;
    if (m_name->text() != sprite.name)
        m_name->setText(sprite.name); // which would move the cursor
    m_mirror->setChecked(sprite.mirror);
    m_flip->setChecked(sprite.flip);
    m_rotate->setChecked(sprite.rotate);
    m_startFrame->setValue(sprite.startFrame);
    m_initialDelay->setValue(sprite.initialDelay);
    m_repeatDelay->setValue(sprite.repeatDelay);
    m_paletteOffset->setValue(sprite.paletteOffset);
}

} // namespace MapEditor
