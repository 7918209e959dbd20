#pragma once

#include <QDate>

/// The date of the software, the same for every build of the same sources: that of SOURCE_DATE_EPOCH when it is set,
/// else that of the changelog. The machine's clock has no part in it.
QDate BuildDate();
