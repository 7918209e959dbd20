import QtQuick 2.15
import "."

// A key of the keypad. What is typed goes to the keypad, which also hears the keyboard: keys are no stops of Tab.
PushButton {
    implicitWidth: Sizes.key
    implicitHeight: Sizes.key
    size: Math.round(Sizes.key * 0.45)
    iconSize: Math.round(Sizes.key * 0.45)
    strong: true
    activeFocusOnTab: false
}
