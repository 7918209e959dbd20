import QtQuick 2.15
import CabSettings 1.0
import "."

// The frame around what the keyboard acts on. Taps never move the focus to a button, so that it shows for keys alone.
//
//     FocusRing { target: button }
Rectangle {
    property Item target: parent

    anchors.fill: parent
    visible: target.activeFocus
    color: "transparent"
    radius: Sizes.radius
    border { width: 4 * Sizes.line; color: Scheme.focus }
}
