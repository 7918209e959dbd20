import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// What the operator does to the map with one tap: below each other, or two by two where there is no room for that.
Grid {
    id: buttons

    // The height that there is.
    property real room: 0
    property Item map
    property bool headingUp: true

    signal turn()

    columns: 4 * Sizes.target + 3 * Sizes.gap <= room ? 1 : 2
    spacing: Sizes.gap

    IconButton {
        objectName: "zoomIn"
        icon: "plus"
        accessibleName: qsTr("Zoom in")
        onClicked: buttons.map.zoomIn()
    }
    IconButton {
        objectName: "zoomOut"
        icon: "minus"
        accessibleName: qsTr("Zoom out")
        onClicked: buttons.map.zoomOut()
    }
    IconButton {
        objectName: "turn"
        icon: buttons.headingUp ? "heading" : "north"
        accessibleName: buttons.headingUp ? qsTr("The heading is up. Turn north up") : qsTr("North is up. Turn the heading up")
        onClicked: buttons.turn()
    }
    IconButton {
        objectName: "recentre"
        icon: "centre"
        accessibleName: qsTr("Centre the vehicle")
        onClicked: buttons.map.recentre()
    }
}
