#pragma once

#include <QString>
#include <QStringList>

/// Qt's virtual keyboard, within the window of the display, as the input method of the program.
///
/// @code
/// ScreenKeyboard::Choose();
/// const QGuiApplication application(argc, argv);
/// @endcode
namespace ScreenKeyboard {

/// Makes it the input method where it is installed and the environment does not name another one (QT_IM_MODULE). To be
/// called before the application object is made, in the only thread.
void Choose();

/// Whether it is installed and is the input method of the program, by Choose() or by the environment.
bool IsChosen();

/// Those of the keyboards that fit a language such as "de": its own one first, then an English one. @p available are
/// all of them, such as "de_DE". Empty when neither is among them.
QStringList LocalesFor(const QString& language, const QStringList& available);

} // namespace ScreenKeyboard
