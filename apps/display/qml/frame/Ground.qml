import QtQuick 2.15
import CabSettings 1.0
import "../controls"

// The ground behind the pages: the background of the scheme with its picture, which is so faint that it does not take
// from what stands on it.
//
//     Ground { anchors.fill: parent }
Rectangle {
    id: ground

    readonly property real share: 0.07

    objectName: "ground"
    color: Scheme.background

    Image {
        anchors.fill: parent
        fillMode: Image.Tile
        verticalAlignment: Image.AlignTop
        horizontalAlignment: Image.AlignLeft
        sourceSize: Qt.size(Math.round(48 * Sizes.scale), Math.round(48 * Sizes.scale))
        source: "image://background/" + Scheme.backgroundNumber + "/"
                + Qt.tint(Scheme.background, Qt.rgba(Scheme.text.r, Scheme.text.g, Scheme.text.b, ground.share))
    }
}
