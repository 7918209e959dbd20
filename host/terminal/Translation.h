#pragma once

#include "HostExport.h"

class QTranslator;

/// Loads the translation for the selected language (PARAM_LANGUAGE) into @p translator and installs it. Texts that were
/// made before stay as they are. Returns false when there is no translation for the language; texts are then in
/// English. This is so for English too.
///
/// ConfigManager must be set, and TRegionSettings::InitializeLanguageStrings() must have run:
/// @code
/// TRegionSettings::InitializeLanguageStrings();
/// InstallTranslation(translator);
/// TUnitAbbreviations::Initialize(); // abbreviations in the selected language
/// @endcode
CABHOST_EXPORT bool InstallTranslation(QTranslator& translator);
