import QtQuick 2.15
import CabSettings 1.0
import "."

// One of the display's icons (apps/display/icons), in any colour.
//
//     Icon { name: "tractor"; color: Scheme.accent }
Image {
    property string name
    property color color: Scheme.text
    property int size: Sizes.icon

    width: size
    height: size
    sourceSize { width: size; height: size }
    source: name === "" ? "" : "image://icon/" + name + "/" + color
}
