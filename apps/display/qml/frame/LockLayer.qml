import QtQuick 2.15
import CabSettings 1.0
import "../controls"

// Locks the screen: for wiping it, and so that nothing is tapped by chance. All that is shown goes on. A long hold of
// the button, by finger or by key, ends it.
Layer {
    id: layer

    objectName: "lockLayer"

    readonly property int holdMilliseconds: 1200

    entry: unlock
    // No key reaches what lies below.
    Keys.onPressed: function(event) { event.accepted = true }

    MouseArea {
        objectName: "shield"
        anchors.fill: parent
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Math.max(Sizes.doorBand, words.height + 2 * Sizes.gap)
        color: Scheme.panel

        Rectangle {
            width: parent.width
            height: 2 * Sizes.line
            color: Scheme.accent
        }
        Icon {
            id: sign

            anchors { left: parent.left; leftMargin: 2 * Sizes.margin; verticalCenter: parent.verticalCenter }
            name: "lock"
            color: Scheme.accent
        }
        TextLabel {
            id: words

            anchors {
                left: sign.right
                right: unlock.left
                margins: Sizes.margin
                verticalCenter: parent.verticalCenter
            }
            text: qsTr("The screen is locked. Hold the button to unlock it.")
            wraps: true
        }
        Rectangle {
            id: unlock

            readonly property bool isHeld: tap.pressed || keyHeld
            property bool keyHeld: false

            objectName: "unlock"
            anchors { right: parent.right; rightMargin: Sizes.margin; verticalCenter: parent.verticalCenter }
            width: label.implicitWidth + 4 * Sizes.margin
            height: Math.min(Sizes.target, parent.height - 2 * Sizes.line)
            radius: Sizes.radius
            color: isHeld ? Scheme.good : Scheme.button
            border { width: Sizes.line; color: Scheme.line }
            activeFocusOnTab: true
            Accessible.role: Accessible.Button
            Accessible.name: label.text
            Accessible.onPressAction: layer.close()
            Keys.onPressed: function(event) {
                if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space) {
                    keyHeld = true
                    event.accepted = true
                }
            }
            Keys.onReleased: function(event) {
                if (!event.isAutoRepeat)
                    keyHeld = false
            }

            Timer {
                interval: layer.holdMilliseconds
                running: unlock.isHeld
                onTriggered: {
                    unlock.keyHeld = false
                    layer.close()
                }
            }
            TextLabel {
                id: label

                anchors.centerIn: parent
                text: qsTr("Unlock")
                size: Sizes.row
                color: unlock.isHeld ? Scheme.panel : Scheme.buttonText
            }
            FocusRing { target: unlock }
            TapArea { id: tap }
        }
    }
}
