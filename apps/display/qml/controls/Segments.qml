import QtQuick 2.15
import CabSettings 1.0
import "."

// One of at most four choices. The segments touch; their targets keep a gap. Where the row is too wide for its place,
// the choices stand one below the other.
//
//     Segments {
//         choices: parameter.choices // [{value, text}]
//         value: parameter.value
//         onChosen: function(value) { parameter.value = value }
//     }
FocusScope {
    id: segments

    property var choices: []
    property var value
    // The width that there is; 0 is any.
    property real room: 0

    readonly property bool isStacked: room > 0 && row.naturalWidth > room

    signal chosen(var value)

    implicitWidth: isStacked ? room : row.naturalWidth
    implicitHeight: isStacked ? choices.length * (Sizes.target + Sizes.gap) : Sizes.target

    Rectangle {
        anchors.fill: parent
        radius: Sizes.radius
        color: Scheme.button
        border { width: Sizes.line; color: Scheme.line }
    }
    Grid {
        id: row

        property real naturalWidth: 0

        function measure() {
            let sum = 0
            for (let i = 0; i < cells.count; ++i)
                sum += cells.itemAt(i) ? cells.itemAt(i).naturalWidth : 0
            naturalWidth = sum
        }

        columns: segments.isStacked ? 1 : segments.choices.length

        Repeater {
            id: cells

            model: segments.choices
            onItemAdded: row.measure()
            onItemRemoved: row.measure()

            delegate: Item {
                id: cell

                readonly property bool isChosen: modelData.value === segments.value
                readonly property real textWidth: Math.max(bold.implicitWidth, label.implicitWidth)
                readonly property real naturalWidth: Math.max(Sizes.target + Sizes.gap, textWidth + 3 * Sizes.margin)

                onNaturalWidthChanged: row.measure()
                width: segments.isStacked ? segments.width
                                          : naturalWidth * Math.max(1, segments.width / Math.max(1, row.naturalWidth))
                height: segments.isStacked ? Sizes.target + Sizes.gap : Sizes.target
                activeFocusOnTab: true
                Accessible.role: Accessible.RadioButton
                Accessible.name: modelData.text
                Accessible.checkable: true
                Accessible.checked: isChosen
                Accessible.onPressAction: segments.chosen(modelData.value)
                Keys.onReturnPressed: segments.chosen(modelData.value)
                Keys.onEnterPressed: segments.chosen(modelData.value)
                Keys.onSpacePressed: segments.chosen(modelData.value)

                Rectangle {
                    anchors.fill: parent
                    visible: cell.isChosen || tap.pressed
                    radius: Sizes.radius
                    color: cell.isChosen ? Scheme.accentGround : Scheme.line
                }
                // The chosen text is bold. The places must not move with the choice.
                TextLabel {
                    id: bold

                    visible: false
                    text: modelData.text
                    font.bold: true
                    size: Sizes.text + 2
                }
                TextLabel {
                    id: label

                    anchors.centerIn: parent
                    text: modelData.text
                    size: Sizes.text + 2
                    font.bold: cell.isChosen
                    color: cell.isChosen ? Scheme.accentGroundText : Scheme.buttonText
                }
                FocusRing { target: cell }
                TapArea {
                    id: tap

                    anchors {
                        leftMargin: Sizes.gap / 2
                        rightMargin: Sizes.gap / 2
                        topMargin: segments.isStacked ? Sizes.gap / 2 : 0
                        bottomMargin: segments.isStacked ? Sizes.gap / 2 : 0
                    }
                    enabled: segments.enabled
                    onClicked: segments.chosen(modelData.value)
                }
            }
        }
    }
}
