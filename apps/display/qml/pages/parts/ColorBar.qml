import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// One part of a colour: its bar from 0 to 1, a button for less and one for more. A tap on the bar takes its place there;
// the left and the right arrow key change it too.
//
//     ColorBar { title: qsTr("Hue"); value: 0.3; step: 0.025; colorAt: function (at) { return Qt.hsla(at, 1, 0.5, 1) }
//                onMoved: function (to) { hue = to } }
Item {
    id: bar

    property string title
    property real value
    property real step
    // The colour of a place on the bar.
    property var colorAt
    // Begins again at the other end.
    property bool isRound: false

    readonly property int cells: 36

    signal moved(real to)

    function move(to) {
        moved(isRound ? (to + 1) % 1 : Math.max(0, Math.min(1, to)))
    }

    // The tails of the title's letters end above the buttons.
    implicitHeight: label.height + Sizes.gap / 2 + Sizes.target

    TextLabel {
        id: label
        height: Sizes.textLine
        muted: true
        text: bar.title
    }

    IconButton {
        id: less
        anchors.top: label.bottom
        anchors.topMargin: Sizes.gap / 2
        icon: "minus"
        accessibleName: qsTr("%1: less").arg(bar.title)
        enabled: bar.isRound || bar.value > 0
        onClicked: bar.move(bar.value - bar.step)
    }

    IconButton {
        id: more
        anchors.top: less.top
        anchors.right: parent.right
        icon: "plus"
        accessibleName: qsTr("%1: more").arg(bar.title)
        enabled: bar.isRound || bar.value < 1
        onClicked: bar.move(bar.value + bar.step)
    }

    Row {
        id: strip
        anchors.left: less.right
        anchors.right: more.left
        anchors.margins: Sizes.gap
        anchors.verticalCenter: less.verticalCenter
        // At night a bar is as low as a finger can still hit: it shows bright colours too.
        height: Scheme.isDay ? Sizes.target - 2 * Sizes.gap : Sizes.target / 3

        Repeater {
            model: bar.cells

            Rectangle {
                width: strip.width / bar.cells
                height: strip.height
                color: bar.colorAt((index + 0.5) / bar.cells)
            }
        }
    }

    Rectangle {
        x: strip.x + bar.value * strip.width - width / 2
        y: less.y
        width: Sizes.gap
        height: less.height
        radius: width / 2
        color: Scheme.text
        border { width: Sizes.line; color: Scheme.panel }
    }

    Item {
        anchors.left: strip.left
        anchors.right: strip.right
        anchors.top: less.top
        height: Sizes.target
        activeFocusOnTab: true
        Accessible.role: Accessible.Slider
        Accessible.name: bar.title
        Keys.onLeftPressed: bar.move(bar.value - bar.step)
        Keys.onRightPressed: bar.move(bar.value + bar.step)

        FocusRing {}

        TapArea {
            onClicked: function (mouse) { bar.move(mouse.x / width) }
        }
    }
}
