#pragma once

#include "nextdata/form.h"
#include "nextdata/reader.h"

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

// What readers() puts together
[[nodiscard]] QList<Reader> paletteReaders();
[[nodiscard]] QList<Reader> tileReaders();
[[nodiscard]] QList<Reader> mapReaders();
[[nodiscard]] QList<Reader> objectReaders();
[[nodiscard]] QList<Reader> spriteReaders();
[[nodiscard]] QList<Reader> imageReaders();
[[nodiscard]] QList<Reader> animationReaders(); ///< of block sets and sprite banks

} // namespace NextData
