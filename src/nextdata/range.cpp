#include "nextdata/range.h"

#include "nextdata/texts.h"

namespace NextData {
namespace {

constexpr int Most = 65535;

} // namespace

QList<Option> Range::options()
{
    return {Option::number(QStringLiteral("first"), Texts::tr("First"),
                           Texts::tr("The number of the first one, counted from 0"), 0, Most, 0),
            Option::number(QStringLiteral("count"), Texts::tr("Count"),
                           Texts::tr("How many are written; 0 is all from the first on"), 0, Most, 0)};
}

Result<Range> Range::chosen(const OptionValues &values, int available)
{
    const int first = values.number("first");
    const int wanted = values.number("count");
    const int count = wanted > 0 ? wanted : available - first;
    if (first >= available || count > available - first) {
        return Failure{Texts::tr("Options first and count: there are %1, and %2 from number %3 on are not")
                           .arg(available)
                           .arg(std::max(count, 1))
                           .arg(first)};
    }
    return Range{first, count};
}

QList<Option> Range::readingOptions()
{
    return {Option::number(QStringLiteral("first"), Texts::tr("First"),
                           Texts::tr("The number of the first one, counted from 0"), 0, Most, 0),
            Option::number(QStringLiteral("count"), Texts::tr("Count"),
                           Texts::tr("How many are read; 0 is all from the first on"), 0, Most, 0)};
}

Result<Range> Range::inFile(const OptionValues &values, const QByteArray &bytes, int thingBytes, int most)
{
    const qsizetype available = bytes.size() / thingBytes;
    if (available == 0)
        return Failure{Texts::tr("The file has %1 bytes, and one of these takes %2").arg(bytes.size()).arg(thingBytes)};
    const Result<Range> range = chosen(values, int(available));
    if (range && range->count > most) {
        return Failure{Texts::tr("The file holds %1, and %2 go into an asset: choose which, with first and count")
                           .arg(range->count)
                           .arg(most)};
    }
    return range;
}

QStringList Range::remarksOn(const QByteArray &bytes, int thingBytes)
{
    const qsizetype rest = bytes.size() % thingBytes;
    return rest > 0 ? QStringList{Texts::tr("Bytes behind the last whole one that are left out: %1").arg(rest)}
                    : QStringList();
}

} // namespace NextData
