import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"

// The ends of the guidance line, the choice of a line that is saved, and a flag where the vehicle is.
Grid {
    id: buttons

    // What is set belongs to the job, which may still be loaded.
    readonly property bool isReady: Work.hasPosition && !Work.loading

    signal choose()

    columns: 2
    spacing: Sizes.gap

    Parameter { id: line; name: "active.ab-line" }

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
        objectName: "lines"
        icon: "lines"
        enabled: !Work.loading
        accessibleName: line.title
        onClicked: buttons.choose()
    }
    IconButton {
        objectName: "mark"
        icon: "flag"
        enabled: buttons.isReady
        accessibleName: qsTr("Set a flag here")
        onClicked: Work.mark()
    }
}
