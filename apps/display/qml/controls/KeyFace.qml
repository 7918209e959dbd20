import QtQuick 2.15
import CabSettings 1.0
import "."

// How a key of the keyboard on the screen looks. It fills its place but for the gap to its neighbours. It takes no taps
// and never has the focus.
//
//     KeyFace { text: control.displayText; isPressed: control.pressed }
Rectangle {
    id: face

    property string text
    property string icon
    // What a long press offers: a small icon in the corner.
    property string corner
    property bool isPressed: false
    property bool primary: false
    property bool checked: false
    property bool isCapital: false

    readonly property color ground: primary ? Scheme.accentGround : checked ? Scheme.goodGround : Scheme.button
    readonly property color ink: primary ? Scheme.accentGroundText : checked ? Scheme.goodGroundText : Scheme.buttonText

    anchors { fill: parent; margins: Sizes.gap / 2 }
    radius: Sizes.radius
    color: isPressed ? Qt.tint(ground, Qt.rgba(ink.r, ink.g, ink.b, 0.25)) : ground
    opacity: enabled ? 1 : 0.5
    border { width: Sizes.line; color: Scheme.line }

    TextLabel {
        anchors { fill: parent; margins: Sizes.gap / 2 }
        text: face.text
        size: Sizes.row
        color: face.ink
        font.capitalization: face.isCapital ? Font.AllUppercase : Font.MixedCase
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    Icon {
        anchors.centerIn: parent
        visible: name !== ""
        name: face.icon
        color: face.ink
    }
    Icon {
        anchors { top: parent.top; right: parent.right; margins: Sizes.gap / 2 }
        visible: name !== ""
        name: face.corner
        size: Math.round(Sizes.icon * 0.6)
        color: face.ink
    }
}
