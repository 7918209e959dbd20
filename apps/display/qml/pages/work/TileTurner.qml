import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// Turns the pages of the tiles, where they have more than one. A dot for each page says which one is shown.
//
//     TileTurner { tiles: tiles }
IconButton {
    id: turner

    property TileGrid tiles

    objectName: "turnTiles"
    visible: tiles.pages.length > 1
    icon: "forward"
    accessibleName: qsTr("Tiles")
    onClicked: tiles.turn()

    Row {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Sizes.gap / 2 }
        spacing: Sizes.gap / 2

        Repeater {
            model: turner.tiles.pages.length

            Rectangle {
                width: Sizes.gap
                height: width
                radius: width / 2
                color: index === Math.min(turner.tiles.page, turner.tiles.pages.length - 1) ? turner.ink : "transparent"
                border { width: Sizes.line; color: turner.ink }
            }
        }
    }
}
