import QtQuick 2.15
import "../../controls"

// The two buttons that turn the pages of a list: one below the other, or beside each other where a list is low.
//
//     PageTurner { hasUp: first > 0; hasDown: last < count - 1; onUp: turnUp(); onDown: turnDown() }
Grid {
    id: turner

    property bool hasUp
    property bool hasDown
    property bool isLow: false

    signal up()
    signal down()

    columns: isLow ? 2 : 1
    spacing: Sizes.gap
    visible: hasUp || hasDown

    IconButton {
        width: Sizes.target
        icon: "up"
        accessibleName: qsTr("Rows above")
        enabled: turner.hasUp
        onClicked: turner.up()
    }

    IconButton {
        width: Sizes.target
        icon: "down"
        accessibleName: qsTr("Rows below")
        enabled: turner.hasDown
        onClicked: turner.down()
    }
}
