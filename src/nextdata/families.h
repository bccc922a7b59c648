#pragma once

#include "nextdata/form.h"

/// The forms of each kind of asset, with their own options alone: what forms() puts together.
namespace NextData {

[[nodiscard]] QList<Form> paletteForms();
[[nodiscard]] QList<Form> mapForms();

} // namespace NextData
