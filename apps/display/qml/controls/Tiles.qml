pragma Singleton
import QtQuick 2.15
import CabSettings 1.0

// The tiles of the work page, by the names of parameter display.tiles. Where a tile shows a quantity, source is the
// property of Work that it shows, and kind says what it is. The rate is shown with what is set and with its error, the
// position in two lines.
//
//     Tiles.row("speed").title
QtObject {
    readonly property var rows: [
        { name: "rate", title: qsTr("Rate"), source: "rate", kind: Quantity.Rate,
          set: { source: "rateSet", kind: Quantity.RequestedRate },
          error: { source: "rateError", kind: Quantity.RateError } },
        { name: "speed", title: qsTr("Speed"), source: "speed", kind: Quantity.Speed },
        { name: "area", title: qsTr("Area"), source: "areaDone", kind: Quantity.Area },
        { name: "left", title: qsTr("Left", "area that is left to work"), source: "areaLeft", kind: Quantity.Area },
        { name: "productivity", title: qsTr("Work", "area per hour"), source: "productivity",
          kind: Quantity.Productivity },
        { name: "flow", title: qsTr("Flow"), source: "flow", kind: Quantity.Flow },
        { name: "pressure", title: qsTr("Press.", "pressure"), source: "pressure", kind: Quantity.Pressure },
        { name: "temperature", title: qsTr("Temp.", "temperature"), source: "temperature", kind: Quantity.Temperature },
        { name: "distance", title: qsTr("Driven"), source: "distance", kind: Quantity.AdaptiveDistance },
        { name: "position", title: qsTr("Position"),
          lines: [{ source: "latitude", kind: Quantity.Latitude }, { source: "longitude", kind: Quantity.Longitude }] },
        { name: "time", title: qsTr("Time") }
    ]

    // Undefined for a name that is none.
    function row(name) {
        for (let i = 0; i < rows.length; ++i) {
            if (rows[i].name === name)
                return rows[i]
        }
        return undefined
    }
}
