#pragma once

#include "HostExport.h"

class QTranslator;

/// Loads the catalogue of the selected language (PARAM_LANGUAGE) into @p translator and installs it; texts that were
/// made before stay as they are. False, for English too, when there is no catalogue: texts are then the English ones.
/// ConfigManager must be set, and TRegionSettings::InitializeLanguageStrings() have run.
CABHOST_EXPORT bool InstallCatalogue(QTranslator& translator);
