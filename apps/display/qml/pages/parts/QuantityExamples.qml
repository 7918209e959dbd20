import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// An example of every quantity, a few at a time, with two buttons to turn the pages. A change of units turns to the
// first example that has changed, unless one that is shown has changed too.
//
//     QuantityExamples { width: page.width; lines: 3 }
Item {
    id: examples

    // How many stand below each other.
    property int lines: 2

    property int first: 0
    readonly property int last: Math.min(first + lines, quantities.count) - 1

    // The first row that has changed, and the first of those that are shown; -1 without.
    property int changed: -1
    property int changedHere: -1

    function note(row) {
        if (changed < 0 || row < changed)
            changed = row
        if (row >= first && row <= last)
            changedHere = row
        turning.restart()
    }

    implicitHeight: Math.max(rows.height, turner.height) + 2 * Sizes.gap
    onLinesChanged: first = 0

    // Once for all rows that a choice changes.
    Timer {
        id: turning
        interval: 0
        onTriggered: {
            if (examples.changedHere < 0)
                examples.first = examples.changed - examples.changed % examples.lines
            examples.changed = -1
            examples.changedHere = -1
        }
    }

    Connections {
        target: quantities.model
        function onDataChanged(topLeft) { examples.note(topLeft.row) }
    }

    Rectangle {
        width: parent.width
        height: 2 * Sizes.line
        color: Scheme.accent
    }

    Column {
        id: rows

        readonly property real margin: Sizes.isNarrow ? Sizes.gap : Sizes.gap * 3

        anchors { left: parent.left; right: turner.left; verticalCenter: parent.verticalCenter }
        anchors { leftMargin: margin; rightMargin: margin }

        Repeater {
            id: quantities

            model: QuantityModel {}

            // The texts of those that are shown: to make all would take most of the time in which the page opens.
            Loader {
                readonly property string title: model.title
                readonly property string value: model.text

                active: index >= examples.first && index <= examples.last
                visible: active
                width: rows.width
                sourceComponent: example
            }
        }
    }

    Component {
        id: example

        Item {
            id: words

            readonly property bool isStacked: title.implicitWidth + value.implicitWidth + 2 * Sizes.gap > width

            height: isStacked ? title.height + value.height : Math.max(title.height, value.height)

            TextLabel {
                id: title

                objectName: "example title"
                y: words.isStacked ? 0 : (words.height - height) / 2
                width: words.width - (words.isStacked ? 0 : value.width + 2 * Sizes.gap)
                wraps: true
                text: words.parent ? words.parent.title : ""
            }

            TextLabel {
                id: value

                objectName: "example"
                anchors.right: parent.right
                y: words.isStacked ? title.height : (words.height - height) / 2
                size: Sizes.row
                font.bold: true
                text: words.parent ? words.parent.value : ""
            }
        }
    }

    PageTurner {
        id: turner

        objectName: "example turner"
        anchors { right: parent.right; rightMargin: Sizes.gap; verticalCenter: parent.verticalCenter }
        isLow: !Sizes.isSlim
        hasUp: examples.first > 0
        hasDown: examples.last < quantities.count - 1
        onUp: examples.first = Math.max(0, examples.first - examples.lines)
        onDown: examples.first = examples.last + 1
    }
}
