import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"

// The ends of the guidance line, and a flag where the vehicle is.
Grid {
    columns: 1
    spacing: Sizes.gap

    IconButton {
        objectName: "setA"
        text: qsTr("A", "one end of the guidance line")
        checked: Work.hasA && !Work.hasLine
        enabled: Work.hasPosition
        accessibleName: qsTr("Set A, the first end of the line, here")
        onClicked: Work.setA()
    }
    IconButton {
        objectName: "setB"
        text: qsTr("B", "the other end of the guidance line")
        enabled: Work.hasPosition && Work.hasA
        accessibleName: qsTr("Set B, the other end of the line, here")
        onClicked: Work.setB()
    }
    IconButton {
        objectName: "mark"
        icon: "flag"
        enabled: Work.hasPosition
        accessibleName: qsTr("Set a flag here")
        onClicked: Work.mark()
    }
}
