#include "app/plainpage.h"
