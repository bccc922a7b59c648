#include "model/enums.h"

#include "moc_enums.cpp"
