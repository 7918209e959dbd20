import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// What the operator does to the map with one tap.
Column {
    id: buttons

    property Item map
    property bool headingUp: true

    signal turn()

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
