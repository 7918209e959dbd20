#pragma once

#include "HostExport.h"

#include <QLatin1String>
#include <QString>

class QTranslator;

/// Loads the catalogue of the selected language (PARAM_LANGUAGE) into @p translator and installs it. Texts that were
/// made before stay as they are.
///
/// English has a catalogue too, which holds the plural forms. It also takes the place of a catalogue that is missing or
/// damaged. Then the function returns false, and says so on standard error, once in a program.
///
/// ConfigManager must be set, and TRegionSettings::InitializeLanguageStrings() must have run:
/// @code
/// TRegionSettings::InitializeLanguageStrings();
/// InstallTranslation(translator);
/// TUnitAbbreviations::Initialize(); // abbreviations in the selected language
/// @endcode
///
/// @param folder where the catalogues are, as cabsettings_<language>.qm; by default those that are built into the host.
CABHOST_EXPORT bool InstallTranslation(QTranslator& translator,
                                       const QString& folder = QLatin1String(":/translations"));
