import QtQuick 2.15
import QtQuick.VirtualKeyboard 2.1
import QtQuick.VirtualKeyboard.Settings 2.1
import CabDisplay 1.0
import "../controls"

// Qt's virtual keyboard at the foot of the window, in the language of the display and in English. It shows itself while
// a text is typed ("active"). To be loaded only where it is installed (ScreenKeyboard.isChosen).
Item {
    id: place

    readonly property bool active: panel.item !== null && panel.item.active

    function chooseLanguage() {
        // None until the keyboard has found its layouts.
        const locales = ScreenKeyboard.locales(VirtualKeyboardSettings.availableLocales)
        if (locales.length === 0 || VirtualKeyboardSettings.locale === locales[0])
            return
        VirtualKeyboardSettings.locale = locales[0]
        VirtualKeyboardSettings.activeLocales = locales
    }

    objectName: "keyboard"
    width: Sizes.width
    height: panel.height
    y: active ? Sizes.height - height : Sizes.height
    visible: active
    Component.onCompleted: {
        // Not by the environment, from which Qt 6.4 takes none but its own styles.
        VirtualKeyboardSettings.styleName = "cabdisplay"
        panel.active = true
        chooseLanguage()
    }

    Connections {
        target: VirtualKeyboardSettings
        function onAvailableLocalesChanged() { place.chooseLanguage() }
    }
    Loader {
        id: panel

        width: parent.width
        active: false
        sourceComponent: InputPanel {}
    }
}
