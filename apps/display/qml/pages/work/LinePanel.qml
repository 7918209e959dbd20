import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"

// The light bar, with the distance from the line in words below it and an arrow on the side to steer to.
Panel {
    id: panel

    width: Math.min(Math.round(416 * Sizes.scale), room)
    height: bar.height + figure.height + 3 * Sizes.gap

    property real room: 0

    Accessible.role: Accessible.StaticText
    Accessible.name: bar.lit < 0 ? qsTr("%1 to the left").arg(off.text)
                     : bar.lit > 0 ? qsTr("%1 to the right").arg(off.text) : off.text

    Quantity {
        id: off

        kind: Quantity.SmallDistance
        value: Math.abs(Work.offLine)
    }
    LightBar {
        id: bar

        objectName: "lightBar"
        x: Sizes.margin
        y: Sizes.gap + 2 * Sizes.line
        width: parent.width - 2 * Sizes.margin
        height: Math.round(22 * Sizes.scale)
        offLine: Work.offLine
        level: Scheme.lightbarLevel
        centreColor: Scheme.good
        sideColor: Scheme.attention
        darkColor: Scheme.button
    }
    Row {
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: Sizes.gap / 2 }
        spacing: Sizes.margin

        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: "left"
            color: Scheme.attention
            opacity: bar.lit < 0 ? 1 : 0
        }
        TextLabel {
            id: figure

            text: off.text
            size: Math.round(40 * Sizes.scale)
            height: Math.round(size * 1.15)
            verticalAlignment: Text.AlignVCenter
            font.bold: true
        }
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: "right"
            color: Scheme.attention
            opacity: bar.lit > 0 ? 1 : 0
        }
    }
}
