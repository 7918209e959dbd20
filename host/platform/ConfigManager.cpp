#include "platform/TConfigManager.h"

TConfigManager* ConfigManager = nullptr; // set by TTerminal
