#include "display/keyboard/TScreenKeyboard.h"

#include "display/keyboard/ScreenKeyboard.h"
#include "display/language/DisplayLanguage.h"

#include <QtQml>

void TScreenKeyboard::Register(const char* module, int major, int minor)
{
    qmlRegisterSingletonType<TScreenKeyboard>(module, major, minor, "ScreenKeyboard",
                                              [](QQmlEngine*, QJSEngine*) -> QObject* { return new TScreenKeyboard; });
}

bool TScreenKeyboard::IsChosen() const { return ScreenKeyboard::IsChosen(); }

QStringList TScreenKeyboard::locales(const QStringList& available) const
{
    return ScreenKeyboard::LocalesFor(DisplayLanguage(), available);
}
