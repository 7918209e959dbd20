import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// A button that shows a value of any length: a long one, such as a path, is smaller and wraps.
//
//     ValueButton { room: 400; value: parameter.shownText; onClicked: edit() }
PushButton {
    id: button

    property string value
    // The width that there is.
    property real room

    implicitWidth: Math.min(room, Math.max(Sizes.target * 2, measure.implicitWidth + 4 * Sizes.margin))
    implicitHeight: Math.max(Sizes.target, label.implicitHeight + 2 * Sizes.gap)

    TextLabel {
        id: measure
        visible: false
        size: Sizes.row
        text: button.value
    }

    TextLabel {
        id: label
        anchors.fill: parent
        anchors.leftMargin: Sizes.margin
        anchors.rightMargin: Sizes.margin
        size: measure.implicitWidth > button.room - 2 * Sizes.margin ? Sizes.text : Sizes.row
        wraps: true
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        color: button.ink
        text: button.value
    }
}
