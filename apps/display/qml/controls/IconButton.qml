import QtQuick 2.15
import "."

// A square button that shows an icon, or one letter. accessibleName says in words what it does.
//
//     IconButton { icon: "plus"; accessibleName: qsTr("Zoom in"); onClicked: map.zoomIn() }
PushButton {
    implicitWidth: Sizes.target
    iconSize: Math.round(Sizes.icon * 1.2)
    strong: true
    size: Math.round(Sizes.title * 1.2)
}
