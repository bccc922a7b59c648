#pragma once

#include "nextdata/form.h"
#include "nextdata/takenfiles.h"

#include <QString>

namespace NextData {

/// The forms in which a game usually takes an asset: one of its pixels, colours or cells, and those of what is placed
/// or animated in it. None for an asset that holds nothing.
[[nodiscard]] QList<const Form *> usualForms(const Source &source);

/// The file that an output is usually written to: the asset's name, what the form makes of it where the suffix does
/// not tell, and the suffix. It has no spaces, which build tools take for the end of a name.
[[nodiscard]] QString usualFile(const QString &assetName, const Form &form, const OptionValues &values);

/// The file of an output whose form or options become others: the usual one stays the usual one, and a suffix that was
/// the usual one follows. It is none of those that are taken.
[[nodiscard]] QString fileAfterChange(const RecipeOutput &before, const RecipeOutput &after, const TakenFiles &taken);

} // namespace NextData
