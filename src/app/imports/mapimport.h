#pragma once

#include "model/map.h"

#include <QPointer>
#include <QString>

/// What came of importing a map: the map, or none, and a text that says what is missing from it, or why there is none.
struct MapImport
{
    QPointer<Map> map;
    QString failure;
};
