#pragma once

#include "nextdata/form.h"

/// The forms of each kind of asset, with their own options alone: what forms() puts together.
namespace NextData {

[[nodiscard]] QList<Form> paletteForms();
[[nodiscard]] QList<Form> tileForms();
[[nodiscard]] QList<Form> mapForms();
[[nodiscard]] QList<Form> objectForms(); ///< what is placed on maps
[[nodiscard]] QList<Form> blockAnimationForms();
[[nodiscard]] QList<Form> spriteForms();
[[nodiscard]] QList<Form> spriteAnimationForms();
[[nodiscard]] QList<Form> imageForms();

} // namespace NextData
