#pragma once

#include "model/enums.h"

#include <QComboBox>

/// Chooses the colour depth of sprites.
class DepthChooser : public QComboBox
{
    Q_OBJECT

public:
    explicit DepthChooser(QWidget *parent = nullptr) : QComboBox(parent)
    {
        addItem(tr("8-bit, 256 colours"), Quenmora::EightBit);
        addItem(tr("4-bit, 16 colours"), Quenmora::FourBit);
    }

    [[nodiscard]] Quenmora::Sprite depth() const { return Quenmora::Sprite(currentData().toInt()); }
};
