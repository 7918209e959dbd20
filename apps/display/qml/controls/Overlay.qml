import QtQuick 2.15
import CabSettings 1.0
import "."

// A panel above everything, for what must be answered first. The pages below are dimmed and do nothing meanwhile.
//
//     Overlay { id: question; TextLabel { text: qsTr("Remove the field?") } }
//     PushButton { text: qsTr("Remove"); onClicked: question.open() }
Layer {
    id: overlay

    default property alias content: panel.data
    property real padding: Sizes.isCompact ? 2 * Sizes.gap : 3 * Sizes.gap
    readonly property bool isOpen: visible
    // What has the focus first where it is opened by a key; null is what lies nearest.
    property Item firstStop: null
    // The largest content that fits the window, above the keyboard on the screen.
    readonly property real roomWidth: Sizes.width - 2 * padding - 2 * Sizes.gap
    readonly property real roomHeight: Sizes.height - Sizes.keyboard - 2 * padding - 2 * Sizes.gap

    property bool _wasTyping: false

    onOpening: _wasTyping = Qt.inputMethod.visible
    // A field of text raises the keyboard when it gets the focus, also when the operator has put it away.
    onClosed: {
        if (!_wasTyping)
            Qt.inputMethod.hide()
    }
    Keys.onEscapePressed: close()

    Rectangle {
        anchors.fill: parent
        color: Scheme.scrim
    }
    MouseArea {
        objectName: "shield"
        anchors.fill: parent
    }
    Rectangle {
        // The keyboard on the screen offers further letters above its first row.
        readonly property real letters: Sizes.keyboard > 0 ? Sizes.target : 0
        readonly property real room: parent.height - Sizes.keyboard - height

        anchors.horizontalCenter: parent.horizontalCenter
        y: letters > 0 ? Math.max(0, Math.min(room, Math.max(Sizes.gap, (room - letters) / 2))) : room / 2
        width: panel.width + 2 * overlay.padding
        height: panel.height + 2 * overlay.padding
        color: Scheme.panel
        radius: Sizes.radius
        border { width: 2 * Sizes.line; color: Scheme.accent }

        Item {
            id: panel

            anchors.centerIn: parent
            width: childrenRect.width
            height: childrenRect.height
        }
    }
}
