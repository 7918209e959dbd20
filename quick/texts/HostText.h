#pragma once

#include "QuickExport.h"

#include <QString>

namespace CabQuick {

/// What a display shows in place of @p english, a reason that the host gives. The host speaks English to programs, to
/// the tool and to logs, whatever the display's language is. An operator reads whole sentences in the language of the
/// display, so that two of them can follow each other in any language.
///
/// @code
/// QString error;
/// if (!WriteImplement(path, implement, &error))
///     CabQuick::SetProblem(key, tr("A file could not be stored. %1").arg(CabQuick::HostText(error)));
/// @endcode
///
/// Empty for an empty text. A text that is not known is shown as it is, as details for the support. May be called from
/// any thread.
CABQUICK_EXPORT QString HostText(const QString& english);

} // namespace CabQuick
