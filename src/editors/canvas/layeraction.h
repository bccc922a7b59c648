#pragma once

#include "ui/enums.h"
#include "undo/pixeleditcommand.h"

#include <QCoreApplication>

#include <functional>
#include <optional>

class Layer2Image;

/// What an action of the tool palette does with all pixels of an image, as one edit.
struct LayerAction
{
    Q_DECLARE_TR_FUNCTIONS(LayerAction)

public:
    QString text;
    PixelEditCommand::Kind kind = PixelEditCommand::None;
    std::function<void(Layer2Image &)> run;

    /// Nothing for a tool, and for an action that leaves the pixels alone.
    [[nodiscard]] static std::optional<LayerAction> of(Quenmora::Ui::ToolButton button);
};
