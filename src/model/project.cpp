#include "model/project.h"

#include "moc_project.cpp"
