#pragma once

#include "preferences/basepreferencespage.h"

#include <QColor>
#include <QPointer>

class ColourButton;
class QCheckBox;
class QColorDialog;
class QSpinBox;

/// What a map editor that is opened from now on looks like.
class MapEditorPage final : public BasePreferencesPage
{
    Q_OBJECT

public:
    explicit MapEditorPage(QWidget *parent = nullptr);

    /// Whether a checker board is drawn beneath maps.
    [[nodiscard]] bool checkerBoard() const;
    /// The grid's two colours. Invalid when the settings hold a name that is no colour.
    [[nodiscard]] QColor gridColour1() const;
    [[nodiscard]] QColor gridColour2() const;
    /// Whether grid lines are drawn over maps.
    [[nodiscard]] bool overlayGrid() const;
    /// Distance of the grid lines in map pixels, 8–256.
    [[nodiscard]] int gridSize() const;
    /// Magnification, 1–8.
    [[nodiscard]] int defaultZoom() const;

    [[nodiscard]] QJsonObject toJson() const override;
    /// A missing setting keeps its present value.
    void fromJson(const QJsonObject &settings) override;

private:
    void chooseColour(ColourButton *button);

    QCheckBox *m_checkerBoard;
    ColourButton *m_gridColour1;
    ColourButton *m_gridColour2;
    QCheckBox *m_overlayGrid;
    QSpinBox *m_gridSize;
    QSpinBox *m_defaultZoom;
    /// One for both buttons, made when first needed.
    QColorDialog *m_colourDialog = nullptr;
    /// The button whose colour is being chosen.
    QPointer<ColourButton> m_chosenFor;
};
