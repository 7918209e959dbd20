#include "display/language/DisplayLanguage.h"

#include "region/TRegionSettingsProxy.h"

QString DisplayLanguage() { return TRegionSettingsProxy().GetLanguageExtension().mid(1); } // without its underscore
