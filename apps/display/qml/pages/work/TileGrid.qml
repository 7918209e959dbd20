import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// The operator's tiles in cells of one size, in their order. The rate takes two by two cells, in a single column one
// high cell; texts take two cells side by side. Tiles for which there is no room are not shown: none is made smaller.
Item {
    id: grid

    property int columns: 2
    property real cellWidth: Math.round(184 * Sizes.scale)
    property real cellHeight: Math.round(94 * Sizes.scale)
    // The height that there is.
    property real room: 0

    readonly property real mainHeight: columns > 1 ? 2 * cellHeight + Sizes.gap : Math.round(132 * Sizes.scale)
    readonly property var names: tiles.value === undefined ? [] : tiles.value.split(",").filter(name => Tiles.row(name))
    readonly property var placed: columns > 1 ? inGrid(names) : inColumn(names)

    // Another choice of tiles is wanted.
    signal chosen()

    function across(cells) { return cells * cellWidth + (cells - 1) * Sizes.gap }
    function down(cells) { return cells * cellHeight + (cells - 1) * Sizes.gap }
    function cellsAcross(name) {
        return name === "rate" || name === "position" || (name === "time" && Clock.shortTime.length > 5) ? 2 : 1
    }
    function inColumn(names) {
        const list = []
        let y = 0
        for (const name of names) {
            const high = name === "rate" ? mainHeight : cellHeight
            if (y + high > room)
                break
            list.push({ name: name, x: 0, y: y, width: cellWidth, height: high })
            y += high + Sizes.gap
        }
        return list
    }
    function inGrid(names) {
        const list = []
        const rows = Math.floor((room + Sizes.gap) / (cellHeight + Sizes.gap))
        const taken = []
        const isFree = (column, row, wide, high) => {
            if (column + wide > columns || row + high > rows)
                return false
            for (let i = 0; i < wide; ++i) {
                for (let j = 0; j < high; ++j) {
                    if (taken[(row + j) * columns + column + i])
                        return false
                }
            }
            return true
        }
        for (const name of names) {
            const wide = cellsAcross(name)
            const high = name === "rate" ? 2 : 1
            for (let cell = 0; cell < rows * columns; ++cell) {
                const column = cell % columns
                const row = Math.floor(cell / columns)
                if (!isFree(column, row, wide, high))
                    continue
                for (let i = 0; i < wide * high; ++i)
                    taken[(row + Math.floor(i / wide)) * columns + column + i % wide] = true
                list.push({
                    name: name,
                    x: column * (cellWidth + Sizes.gap),
                    y: row * (cellHeight + Sizes.gap),
                    width: across(wide),
                    height: down(high)
                })
                break
            }
        }
        return list
    }

    width: across(columns)
    height: placed.reduce((height, tile) => Math.max(height, tile.y + tile.height), 0)

    Parameter { id: tiles; name: "display.tiles" }

    Component {
        id: rate

        RateTile {
            row: Tiles.row("rate")
            hasWords: grid.columns > 1
            onClicked: grid.chosen()
        }
    }
    Component {
        id: position

        PositionTile {
            row: Tiles.row("position")
            onClicked: grid.chosen()
        }
    }
    Component {
        id: time

        FigureTile {
            title: Tiles.row("time").title
            number: Clock.shortTime
            onClicked: grid.chosen()
        }
    }
    Component {
        id: quantity

        QuantityTile {
            row: Tiles.row(parent.name)
            onClicked: grid.chosen()
        }
    }
    Repeater {
        model: grid.placed

        Loader {
            readonly property string name: modelData.name

            objectName: "tile." + name
            x: modelData.x
            y: modelData.y
            width: modelData.width
            height: modelData.height
            sourceComponent: name === "rate" ? rate : name === "position" ? position : name === "time" ? time : quantity
        }
    }
}
