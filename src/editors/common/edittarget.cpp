#include "editors/common/edittarget.h"

EditTarget::~EditTarget() = default;
