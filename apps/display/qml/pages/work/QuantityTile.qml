import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"

// A tile that shows one quantity of the work: a row of Tiles.
FigureTile {
    id: tile

    property var row
    // Number and unit change together, so that a change of the number alone says that the unit has changed too.
    readonly property string shownUnit: quantity.unit

    title: row.title
    unit: quantity.unit
    number: quantity.number

    // A figure with more digits than the tile has room for has fewer decimals.
    function fit() {
        while (isTooWide && quantity.precision !== 0)
            quantity.precision = quantity.precision < 0 ? 1 : 0
    }

    onShownUnitChanged: quantity.precision = -1
    onIsTooWideChanged: Qt.callLater(fit)

    Quantity {
        id: quantity

        kind: tile.row.kind
        value: Work[tile.row.source]
    }
}
