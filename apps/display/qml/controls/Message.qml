import QtQuick 2.15
import CabSettings 1.0
import "."

// A sentence that needs attention, over the whole width of its parent, with a button where something can be done.
//
//     Message { text: Problems.first; visible: Problems.count > 0 }
//     Message { text: Restart.reason; action: qsTr("Restart"); onClicked: Restart.request() }
Rectangle {
    id: message

    property string text
    property string action
    property string icon: "warning"

    signal clicked()

    width: parent ? parent.width : implicitWidth
    implicitHeight: Math.max(action !== "" ? Sizes.target + 2 * Sizes.margin : 0, words.implicitHeight + 2 * Sizes.gap)
    color: Scheme.panel
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Rectangle {
        width: Sizes.gap
        height: parent.height
        color: Scheme.attention
    }
    Icon {
        id: sign

        anchors { left: parent.left; leftMargin: 2 * Sizes.margin; verticalCenter: parent.verticalCenter }
        name: message.icon
        color: Scheme.attention
    }
    TextLabel {
        id: words

        anchors {
            left: sign.right
            right: button.visible ? button.left : parent.right
            margins: Sizes.margin
            verticalCenter: parent.verticalCenter
        }
        text: message.text
        wraps: true
    }
    PushButton {
        id: button

        anchors { right: parent.right; rightMargin: Sizes.margin; verticalCenter: parent.verticalCenter }
        visible: message.action !== ""
        text: message.action
        primary: true
        onClicked: message.clicked()
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Sizes.line
        color: Scheme.line
    }
}
