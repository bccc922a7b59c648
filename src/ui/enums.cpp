#include "ui/enums.h"

#include "moc_enums.cpp"
