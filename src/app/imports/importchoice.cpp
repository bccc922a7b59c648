#include "app/imports/importchoice.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array Names{"none", "ordered", "diffusion"};

}

QString ImportChoice::nameOf(Dithering dithering)
{
    return QLatin1String(Names[size_t(dithering)]);
}

std::optional<Dithering> ImportChoice::ditheringOf(const QJsonValue &name)
{
    const QString text = name.toString();
    const auto found =
        std::find_if(Names.cbegin(), Names.cend(), [&text](const char *known) { return text == QLatin1String(known); });
    return found == Names.cend() ? std::nullopt : std::optional(Dithering(found - Names.cbegin()));
}
