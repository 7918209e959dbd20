import QtQuick 2.15
import CabSettings 1.0
import "."

// The frame around what the keyboard or the knob acts on. A tap hides it, and the next key shows it again.
//
//     FocusRing { target: button }
Rectangle {
    property Item target: parent

    anchors.fill: parent
    visible: target.activeFocus && Sizes.byKeys
    color: "transparent"
    radius: Sizes.radius
    border { width: 4 * Sizes.line; color: Scheme.focus }
}
