import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"

// The ends of the guidance line, and a flag where the vehicle is.
Grid {
    id: buttons

    // What is set belongs to the job, which may still be loaded.
    readonly property bool isReady: Work.hasPosition && !Work.loading

    columns: 1
    spacing: Sizes.gap

    IconButton {
        objectName: "setA"
        text: qsTr("A", "one end of the guidance line")
        checked: Work.hasA && !Work.hasLine
        enabled: buttons.isReady
        accessibleName: qsTr("Set A, the first end of the line, here")
        onClicked: Work.setA()
    }
    IconButton {
        objectName: "setB"
        text: qsTr("B", "the other end of the guidance line")
        enabled: buttons.isReady && Work.hasA
        accessibleName: qsTr("Set B, the other end of the line, here")
        onClicked: Work.setB()
    }
    IconButton {
        objectName: "mark"
        icon: "flag"
        enabled: buttons.isReady
        accessibleName: qsTr("Set a flag here")
        onClicked: Work.mark()
    }
}
