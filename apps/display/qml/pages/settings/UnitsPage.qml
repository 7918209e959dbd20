import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// The units, with examples at the foot that follow every change at once.
//
//     UnitsPage { title: qsTr("Units"); navigator: page }
GroupPage {
    id: page

    // As many as fit beside each other.
    readonly property int count: Math.max(1, Math.floor(width / (Sizes.row * 6.5)))
    readonly property var examples: [
        { kind: Quantity.Area, value: 8.37 },
        { kind: Quantity.Rate, value: 182.4 },
        { kind: Quantity.Pressure, value: 252 },
        { kind: Quantity.Flow, value: 90.4 },
        { kind: Quantity.Speed, value: 3.44 }
    ]

    group: "units"

    foot: Rectangle {
        width: page.width
        height: examples.height + Sizes.gap * 2
        radius: Sizes.radius
        color: Scheme.button

        Rectangle {
            width: parent.width
            height: 2
            color: Scheme.accent
        }

        Row {
            id: examples
            x: Sizes.gap * 3
            y: Sizes.gap
            width: parent.width - 2 * x
            spacing: Sizes.gap * 3

            Repeater {
                model: page.examples.slice(0, page.count)

                Column {
                    TextLabel {
                        color: Scheme.buttonText
                        text: quantity.title
                    }

                    TextLabel {
                        size: Sizes.row
                        font.bold: true
                        color: Scheme.buttonText
                        text: quantity.text
                    }

                    Quantity {
                        id: quantity
                        kind: modelData.kind
                        value: modelData.value
                    }
                }
            }
        }
    }
}
