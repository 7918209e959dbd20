import QtQuick 2.15
import CabSettings 1.0
import "."

// A solid ground for what belongs together. Nothing shines through it.
//
//     Panel { width: 400; height: 200; TextLabel { text: qsTr("Rate") } }
Rectangle {
    color: Scheme.panel
    radius: Sizes.radius
    border { width: Sizes.line; color: Scheme.line }
}
