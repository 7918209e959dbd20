import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// How long something on the map is.
Panel {
    property real pixels: 0
    property alias metres: distance.value

    visible: pixels > 0
    width: Math.max(pixels, words.implicitWidth) + 2 * Sizes.margin
    height: words.height + bar.height + Sizes.gap

    Quantity { id: distance; kind: Quantity.Distance; precision: 0 }

    TextLabel {
        id: words

        anchors.horizontalCenter: parent.horizontalCenter
        text: distance.text
    }
    Item {
        id: bar

        anchors { horizontalCenter: parent.horizontalCenter; top: words.bottom }
        width: parent.pixels
        height: Sizes.gap

        Rectangle { width: 2 * Sizes.line; height: parent.height; color: Scheme.text }
        Rectangle { anchors.bottom: parent.bottom; width: parent.width; height: 2 * Sizes.line; color: Scheme.text }
        Rectangle { anchors.right: parent.right; width: 2 * Sizes.line; height: parent.height; color: Scheme.text }
    }
}
