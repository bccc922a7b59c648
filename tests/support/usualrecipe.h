#pragma once

#include "nextdata/recipe.h"
#include "nextdata/takenfiles.h"
#include "nextdata/usual.h"

/// All assets of a project in their usual forms, as far as those can be.
[[nodiscard]] inline NextData::Recipe usualRecipe(const Project &project)
{
    using namespace NextData;
    TakenFiles taken;
    QList<RecipeOutput> outputs;
    for (const Source &source : Source::all(project)) {
        for (const Form *form : usualForms(source)) {
            const auto values = *OptionValues::parse(form->options, {});
            const QString file = taken.claim(usualFile(source.name(), *form, values));
            outputs.append({source.kind(), source.id(), source.name(), form->id, {}, file});
        }
    }
    Recipe recipe;
    recipe.setOutputs(outputs);
    return recipe;
}
