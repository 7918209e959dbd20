// Compiles the factor functions, which are inline everywhere else, once into the library.

#define CABSETTINGS_FACTOR
#include "units/TUnits.h"
