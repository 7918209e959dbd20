import QtQuick 2.15
import CabSettings 1.0
import "."

// One quantity: label and unit above, the figure right-aligned below, so that it does not move when it changes.
//
//     FigureTile { title: qsTr("Speed"); unit: speed.unit; number: speed.number; onClicked: openChoice() }
Panel {
    id: tile

    property string title
    property string unit
    property string number
    // The figure that rules the page.
    property bool isMain: false
    // What stands below the figure.
    default property alias detail: below.data
    // What stands at the left of the figure, where there is room.
    property alias beside: beside.data

    readonly property real inner: width - 2 * Sizes.margin
    readonly property bool isTooWide: inner > 0 && widest.advanceWidth(number) > inner

    signal clicked()

    implicitWidth: Math.round(Sizes.figure * 3.8)
    implicitHeight: lines.height + 2 * Sizes.line
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: title + " " + number + " " + unit
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    FontMetrics {
        id: widest

        font { bold: true; pixelSize: tile.isMain ? Sizes.main : Sizes.figureLeast }
    }
    Column {
        id: lines

        x: Sizes.margin
        anchors.verticalCenter: parent.verticalCenter
        width: tile.inner

        Item {
            // Words that are too wide together get narrower letters, which stay as high as others. Letters that are
            // narrower still cannot be read: the end of the title is left out.
            readonly property real narrowest: 0.75
            readonly property real wanted: (width - Sizes.gap) / (name.implicitWidth + unit.implicitWidth)
            readonly property real squeeze: Math.max(narrowest, Math.min(1, wanted))

            width: parent.width
            height: Math.round(Sizes.text * 1.4)

            TextLabel {
                id: name

                objectName: "title"
                anchors.bottom: parent.bottom
                width: parent.wanted >= parent.narrowest ? implicitWidth
                       : Math.max(0, (parent.width - Sizes.gap) / parent.squeeze - unit.implicitWidth)
                elide: Text.ElideRight
                text: tile.title
                muted: true
                transform: Scale { xScale: name.parent.squeeze }
            }
            TextLabel {
                id: unit

                objectName: "unit"
                anchors { bottom: parent.bottom; right: parent.right }
                text: tile.unit
                muted: true
                transform: Scale { origin.x: unit.width; xScale: unit.parent.squeeze }
            }
        }
        Item {
            width: parent.width
            height: figure.height

            TextLabel {
                id: figure

                objectName: "figure"
                width: parent.width
                // A line of the font is higher than its digits; the room below them is not needed.
                height: Math.round(size * 1.16)
                size: tile.isMain ? Sizes.main : Sizes.figure
                text: tile.number
                font.bold: true
                horizontalAlignment: Text.AlignRight
                verticalAlignment: Text.AlignVCenter
            }
            Item {
                id: beside

                width: parent.width - figure.contentWidth - Sizes.margin
                height: parent.height
            }
        }
        Item {
            id: below

            width: parent.width
            height: childrenRect.height > 0 ? childrenRect.height + Sizes.gap : 0
        }
    }
    FocusRing { target: tile }
    TapArea {
        onClicked: tile.clicked()
        onPressAndHold: tile.clicked()
    }
}
