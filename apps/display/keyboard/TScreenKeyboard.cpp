#include "display/keyboard/TScreenKeyboard.h"

#include "display/keyboard/ScreenKeyboard.h"

#include "region/TRegionSettingsProxy.h"

#include <QtQml>

void TScreenKeyboard::Register(const char* module, int major, int minor)
{
    qmlRegisterSingletonType<TScreenKeyboard>(module, major, minor, "ScreenKeyboard",
                                              [](QQmlEngine*, QJSEngine*) -> QObject* { return new TScreenKeyboard; });
}

bool TScreenKeyboard::IsChosen() const { return ScreenKeyboard::IsChosen(); }

QStringList TScreenKeyboard::locales(const QStringList& available) const
{
    const QString language = TRegionSettingsProxy().GetLanguageExtension().mid(1); // without its underscore
    return ScreenKeyboard::LocalesFor(language, available);
}
