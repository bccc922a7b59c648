// Reads a recipe. One that is taken is written and read again as the same, and its files stay below their folder.

#include "nextdata/recipe.h"
#include "nextdata/targetfolder.h"

#include <QDir>

#include <cstdlib>

using namespace NextData;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Recipe recipe;
    if (!recipe.parse(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size))).isEmpty())
        return 0;
    Recipe again;
    if (!again.parse(recipe.text()).isEmpty() || again.text() != recipe.text())
        std::abort();
    static const TargetFolder folder(QDir::tempPath());
    for (const RecipeOutput &output : recipe.outputs()) {
        const Result<QString> place = folder.placeOf(output.file);
        if (place && QDir::cleanPath(*place) != *place)
            std::abort();
    }
    return 0;
}
