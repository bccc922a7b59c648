#pragma once

#include "model/result.h"

namespace NextData {

using ::Failure;
using ::Result;

} // namespace NextData
