import QtQuick 2.15
import "."

// What a finger may hit: at least as large as a target, also where what is seen is smaller. Everything that can be
// tapped has one, and fills its parent or reaches beyond it.
//
//     TapArea { onClicked: button.clicked() }
MouseArea {
    // How far the area must reach beyond its parent to be as high as a target. Rows of the window's own bands use it.
    readonly property real missing: Math.max(0, (Sizes.target - parent.height) / 2)

    objectName: "target"
    anchors { fill: parent; topMargin: -missing; bottomMargin: -missing }
}
