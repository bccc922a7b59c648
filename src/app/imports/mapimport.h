#pragma once

#include "model/map.h"

#include <QPointer>
#include <QString>

/// What came of importing a map: the map, or a text that says why there is none.
struct MapImport
{
    QPointer<Map> map;
    QString failure;
};
