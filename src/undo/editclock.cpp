#include "undo/editclock.h"

#include <QDateTime>

#include <utility>

namespace {

std::function<qint64()> &source()
{
    static std::function<qint64()> current;
    return current;
}

} // namespace

qint64 EditClock::now()
{
    return source() ? source()() : QDateTime::currentMSecsSinceEpoch();
}

void EditClock::setSource(std::function<qint64()> newSource)
{
    source() = std::move(newSource);
}
