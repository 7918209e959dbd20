#include "display/DisplayTypes.h"

#include "display/fieldwork/TWork.h"
#include "display/keyboard/TScreenKeyboard.h"
#include "display/keys/TFocusKeys.h"
#include "display/lightbar/TLightBar.h"
#include "display/map/TMapItem.h"

#include <QtQml>

namespace {

constexpr const char* Module = "CabDisplay";
constexpr int Major = 1;
constexpr int Minor = 0;

} // namespace

void RegisterDisplayTypes()
{
    qmlRegisterType<TFocusKeys>(Module, Major, Minor, "FocusKeys");
    qmlRegisterType<TLightBar>(Module, Major, Minor, "LightBar");
    qmlRegisterType<TMapItem>(Module, Major, Minor, "MapView");
    TScreenKeyboard::Register(Module, Major, Minor);
    TWork::Register(Module, Major, Minor);
}
