import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"

// The figure that rules the page: the rate, a bar that shows how far it is from what is set, and both in words.
FigureTile {
    id: tile

    property var row
    property bool hasWords: true
    // The words stand beside the figure instead of below it.
    property bool isWide: false
    // Percent of the rate that is set, for a full bar; beyond the tolerance the bar calls for attention.
    readonly property real fullScale: 20
    readonly property real tolerance: 5
    readonly property real error: isNaN(Work.rateError) ? 0 : Work.rateError
    readonly property real fill: Math.max(-1, Math.min(1, error / fullScale))

    isMain: true
    title: row.title
    unit: rate.unit
    number: rate.number

    Quantity { id: rate; kind: tile.row.kind; value: Work[tile.row.source] }
    Quantity { id: target; kind: tile.row.set.kind; value: Work[tile.row.set.source] }
    Quantity {
        id: deviation

        kind: tile.row.error.kind
        value: Work[tile.row.source]
        error: Work[tile.row.error.source]
    }

    Column {
        width: tile.inner
        spacing: Sizes.gap / 2

        Rectangle {
            id: bar

            width: parent.width
            height: Math.round(14 * Sizes.scale)
            radius: height / 2
            color: Scheme.button

            Rectangle {
                x: bar.width / 2 + Math.min(0, tile.fill) * bar.width / 2
                width: Math.abs(tile.fill) * bar.width / 2
                height: parent.height
                radius: Math.min(width, height) / 2
                color: Math.abs(tile.error) > tile.tolerance ? Scheme.attention : Scheme.good
            }
            Rectangle {
                anchors.centerIn: parent
                width: 3 * Sizes.line
                height: parent.height + Sizes.gap
                color: Scheme.text
            }
        }
        Loader {
            width: parent.width
            active: tile.hasWords && !tile.isWide
            visible: active
            sourceComponent: words
        }
    }
    beside: Loader {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        active: tile.hasWords && tile.isWide
        sourceComponent: words
    }
    Component {
        id: words

        Grid {
            columns: tile.isWide ? 1 : 2
            columnSpacing: Math.max(0, width - setText.implicitWidth - errorText.implicitWidth)

            TextLabel {
                id: setText

                objectName: "set"
                // The unit of the rate may depend on the product, that of the requested rate does not.
                text: qsTr("set %1", "the rate that is set").arg(target.unit === rate.unit ? target.number : target.text)
                muted: true
            }
            TextLabel {
                id: errorText

                objectName: "error"
                text: deviation.errorText
                muted: true
            }
        }
    }
}
