import QtQuick 2.15
import "../../controls"
import "../parts"

// The units, with examples of all quantities at the foot that follow every change at once.
//
//     UnitsPage { title: qsTr("Units"); navigator: page }
GroupPage {
    id: page

    group: "units"

    foot: QuantityExamples {
        width: page.width
        // A fifth of the page is theirs.
        lines: Math.max(2, Math.floor(page.height / 5 / (1.3 * Sizes.row)))
    }
}
