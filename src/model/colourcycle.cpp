#include "model/colourcycle.h"

#include "model/projectextras.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <numeric>

namespace {

QString keyOf(const QUuid &palette)
{
    return palette.toString(QUuid::WithoutBraces);
}

} // namespace

bool ColourCycle::isValid() const
{
    return first >= 0 && first < last && last < Palette::Size && frames >= 1 && frames <= MaxFrames;
}

namespace ColourCycles {

List sound(const List &cycles)
{
    List result;
    for (const ColourCycle &cycle : cycles) {
        const auto overlaps = [&cycle](const ColourCycle &other) { return cycle.overlaps(other); };
        if (cycle.isValid() && std::ranges::none_of(result, overlaps))
            result.append(cycle);
    }
    std::ranges::sort(result, {}, &ColourCycle::first);
    return result;
}

List of(const ProjectExtras &extras, const QUuid &palette)
{
    List cycles;
    const QJsonArray kept = extras.section(Section)[keyOf(palette)].toArray();
    for (const QJsonValue &item : kept)
        cycles.append({item[u"first"].toInt(-1), item[u"last"].toInt(-1), item[u"frames"].toInt(-1),
                       item[u"backwards"].toBool()});
    return sound(cycles);
}

void set(ProjectExtras &extras, const QUuid &palette, const List &cycles)
{
    QJsonArray items;
    for (const ColourCycle &cycle : sound(cycles))
        items.append(QJsonObject{{QStringLiteral("first"), cycle.first},
                                 {QStringLiteral("last"), cycle.last},
                                 {QStringLiteral("frames"), cycle.frames},
                                 {QStringLiteral("backwards"), cycle.backwards}});
    QJsonObject all = extras.section(Section).toObject();
    if (items.isEmpty())
        all.remove(keyOf(palette));
    else
        all.insert(keyOf(palette), items);
    extras.setSection(Section, all.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(all));
}

Palette::ShownEntries shownEntries(const List &cycles, qint64 frame)
{
    Palette::ShownEntries shown = Palette::ownEntries();
    for (const ColourCycle &cycle : cycles) {
        const auto from = shown.begin() + cycle.first;
        const auto to = shown.begin() + cycle.last + 1;
        const auto step = frame / cycle.frames % (to - from);
        std::rotate(from, cycle.backwards ? from + step : to - step, to);
    }
    return shown;
}

int commonFrames(const List &cycles)
{
    int common = 0;
    for (const ColourCycle &cycle : cycles)
        common = std::gcd(common, cycle.frames);
    return common;
}

} // namespace ColourCycles
