import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"

// Latitude and longitude, one below the other: both in one line have no room.
Panel {
    id: tile

    property var row

    signal clicked()

    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: latitude.text + " " + longitude.text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Quantity { id: latitude; kind: tile.row.lines[0].kind; value: Work[tile.row.lines[0].source] }
    Quantity { id: longitude; kind: tile.row.lines[1].kind; value: Work[tile.row.lines[1].source] }

    Column {
        anchors { left: parent.left; right: parent.right; margins: Sizes.margin; verticalCenter: parent.verticalCenter }

        Repeater {
            model: [latitude.text, longitude.text]

            TextLabel {
                objectName: "position"
                width: parent.width
                text: modelData
                // Not a figure's size: a line has up to 16 signs, which at 48 px are wider than two cells, and two such
                // lines are higher than one. A position is read at a standstill, not at a glance.
                size: Sizes.row
                horizontalAlignment: Text.AlignRight
            }
        }
    }
    FocusRing { target: tile }
    TapArea { onClicked: tile.clicked() }
}
