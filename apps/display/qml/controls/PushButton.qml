import QtQuick 2.15
import CabSettings 1.0
import "."

// A button with words, an icon, or both. Enter and the space bar press it.
//
//     PushButton { text: qsTr("Set"); primary: true; enabled: entry.isGood; onClicked: accept() }
//     PushButton { text: qsTr("Export"); icon: "export"; onClicked: transfer.exportLogs() }
Item {
    id: button

    property string text
    property string icon
    // The one that is meant: in the accent colour.
    property bool primary: false
    // Something is on: in the colour of what is good.
    property bool checked: false
    property string accessibleName: text
    property int size: Sizes.row
    property int iconSize: Sizes.icon
    property bool isFlat: false
    // Bold, as the text of a primary button is.
    property bool strong: primary || checked

    readonly property bool isPressed: tap.pressed && tap.containsMouse
    readonly property color ground: primary ? Scheme.accentGround : checked ? Scheme.goodGround : Scheme.button
    // A checked button is not dimmed when it is disabled: it still says what is on.
    readonly property bool isDim: !enabled && !checked
    readonly property color ink: primary ? Scheme.accentGroundText : checked ? Scheme.goodGroundText
                                 : isFlat ? Scheme.text : Scheme.buttonText

    signal clicked()
    signal held()

    function press() {
        if (enabled)
            clicked()
    }

    // Not of the row: the label there may have shrunk to the button.
    implicitWidth: Math.max(Sizes.target, label.implicitWidth + 3 * Sizes.margin
                                          + (icon === "" ? 0 : text === "" ? Sizes.icon : Sizes.icon + content.spacing))
    implicitHeight: Sizes.target
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.onPressAction: press()
    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()
    Keys.onSpacePressed: press()

    Rectangle {
        anchors.fill: parent
        visible: !button.isFlat || button.primary || button.checked || button.isPressed
        radius: Sizes.radius
        // Solid, whatever moves below it.
        color: button.isPressed ? Qt.tint(button.ground, Qt.rgba(button.ink.r, button.ink.g, button.ink.b, 0.25))
               : button.isDim ? Qt.tint(Scheme.panel, Qt.rgba(button.ground.r, button.ground.g, button.ground.b, 0.5))
               : button.ground
        border { width: Sizes.line; color: Scheme.line }
    }
    Row {
        id: content

        anchors.centerIn: parent
        spacing: Sizes.margin
        opacity: button.isDim ? 0.5 : 1

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: button.icon !== ""
            name: button.icon
            size: button.iconSize
            color: button.ink
        }
        TextLabel {
            id: label

            readonly property real room: button.width - 2 * Sizes.gap
                                         - (button.icon !== "" ? button.iconSize + content.spacing : 0)

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, room)
            visible: text !== ""
            text: button.text
            size: button.size
            color: button.ink
            font.bold: button.strong
        }
    }
    FocusRing { target: button }
    TapArea {
        id: tap

        enabled: button.enabled
        onClicked: button.clicked()
        onPressAndHold: button.held()
    }
}
