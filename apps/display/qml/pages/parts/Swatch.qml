import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// A button that shows a colour.
//
//     Swatch { color: parameter.value; accessibleName: parameter.title; onClicked: edit() }
PushButton {
    id: swatch

    property color color

    implicitWidth: Sizes.target * 2

    Rectangle {
        anchors.fill: parent
        anchors.margins: Sizes.gap
        radius: Sizes.radius / 2
        color: swatch.color
        border { width: Sizes.line; color: Scheme.buttonText }
    }
}
