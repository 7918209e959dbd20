import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"

// Latitude and longitude, one below the other: both in one line have no room.
Panel {
    id: tile

    signal clicked()

    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: latitude.text + " " + longitude.text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Quantity { id: latitude; kind: Quantity.Latitude; value: Work.latitude }
    Quantity { id: longitude; kind: Quantity.Longitude; value: Work.longitude }

    Column {
        anchors { left: parent.left; right: parent.right; margins: Sizes.margin; verticalCenter: parent.verticalCenter }

        Repeater {
            model: [latitude.text, longitude.text]

            TextLabel {
                width: parent.width
                text: modelData
                size: Sizes.row
                horizontalAlignment: Text.AlignRight
            }
        }
    }
    FocusRing { target: tile }
    TapArea { onClicked: tile.clicked() }
}
