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

QJsonArray ImportChoice::rangesOf(const QList<int> &numbers)
{
    QJsonArray ranges;
    for (qsizetype i = 0; i < numbers.size();) {
        qsizetype end = i + 1;
        while (end < numbers.size() && numbers[end] == numbers[end - 1] + 1)
            ++end;
        ranges.append(QJsonArray{numbers[i], int(end - i)});
        i = end;
    }
    return ranges;
}

QList<int> ImportChoice::numbersOf(const QJsonValue &ranges, int count)
{
    QList<int> numbers;
    QList<bool> known(count); // a file may name any of them twice
    const QJsonArray pairs = ranges.toArray();
    for (const QJsonValue &pair : pairs) {
        const int first = std::clamp(pair[0].toInt(), 0, count);
        const int last = int(std::min<qint64>(qint64(first) + std::max(pair[1].toInt(), 0), count));
        for (int number = first; number < last && !known[number]; ++number) {
            known[number] = true;
            numbers.append(number);
        }
    }
    return numbers;
}
