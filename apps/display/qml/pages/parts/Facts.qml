import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// Values that the operator reads, as many beside each other as there is room for.
//
//     Facts { width: 900; Fact { title: qsTr("Fix"); text: Receiver.fixText; isMain: true } }
Item {
    id: block

    default property alias facts: grid.data
    property int count: 4
    property real leastWidth: Sizes.row * 8.5

    implicitHeight: grid.height + Sizes.gap * 3

    Grid {
        id: grid

        readonly property real cellWidth: (width - columnSpacing * (columns - 1)) / columns

        y: Sizes.gap * 1.5
        width: parent.width
        columns: Math.max(1, Math.min(block.count, Math.floor((width + columnSpacing) / (block.leastWidth + columnSpacing))))
        columnSpacing: Sizes.gap * 2
        rowSpacing: Sizes.gap
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Sizes.line
        color: Scheme.line
    }
}
