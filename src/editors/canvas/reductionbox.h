#pragma once

#include "pictures/dithering.h"

#include <QComboBox>
#include <QString>

#include <optional>

struct ColourReduction;

/// Chooses whether, and how, a picture is reduced to the colours that there is room for.
class ReductionBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ReductionBox(QWidget *parent = nullptr);

    /// None when the picture's colours are taken as they come.
    [[nodiscard]] std::optional<Dithering> reduction() const;
    void setReduction(std::optional<Dithering> reduction);

    /// Tells of the colours before and after, and what is lost.
    [[nodiscard]] static QString told(const ColourReduction &reduction);
};
