#pragma once

#include <QString>

/// The language in which the display shows its texts, such as "de"; empty when none is set. Needs a terminal that runs.
QString DisplayLanguage();
