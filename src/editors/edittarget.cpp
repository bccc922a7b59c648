#include "editors/edittarget.h"

EditTarget::~EditTarget() = default;
