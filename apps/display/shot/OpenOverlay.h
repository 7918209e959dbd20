#pragma once

#include "display/shot/OverlayTable.h"
#include "display/shot/PageTable.h"

#include <QString>

class QQuickWindow;

/// Goes to a page.
void OpenPage(const QQuickWindow& window, const tagPage& page);

/// Opens an overlay over its page as the operator would: goes to the page, presses the buttons, types the keys. Waits
/// until it is there.
///
/// @code
/// if (!OpenOverlay(*session.Window(), session.Store(), *FindOverlay(name), &error))
///     return Fail(error);
/// @endcode
///
/// False, with the reason in @p error, when it does not open.
bool OpenOverlay(QQuickWindow& window, TSqliteStore& store, const tagOverlay& overlay, QString* error);

/// Closes it again, and goes to the work page. What was typed is not taken.
void CloseOverlay(QQuickWindow& window, TSqliteStore& store, const tagOverlay& overlay);
