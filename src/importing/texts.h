#pragma once

#include <QCoreApplication>

namespace Importing {

/// The texts of this layer, by the one name under which they are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Importing)
};

} // namespace Importing
