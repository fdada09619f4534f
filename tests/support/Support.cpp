// Compiles the support headers by themselves.
#include "support/FakePlatform.h"
#include "support/TemporarySettings.h"
