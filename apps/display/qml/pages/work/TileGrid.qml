import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// The operator's tiles in cells of one size, in their order. The rate takes two by two cells, and in a low grid a high
// cell over all columns; texts take two cells side by side. None is made smaller: tiles for which there is no room stand
// on further pages, one of which is shown.
Item {
    id: grid

    property int columns: 2
    property real cellWidth: Math.round(184 * Sizes.scale)
    property real cellHeight: Math.round(94 * Sizes.scale)
    // The height that there is.
    property real room: 0

    // Two cells for the rate are too high.
    property bool isLow: false
    // The page that is shown, counted from 0.
    property int page: 0

    readonly property real mainHeight: isLow ? Math.round(132 * Sizes.scale) : 2 * cellHeight + Sizes.gap
    readonly property var names: tiles.value === undefined ? [] : tiles.value.split(",").filter(name => Tiles.row(name))
    readonly property var pages: inPages(names)
    readonly property var placed: pages.length > 0 ? pages[Math.min(page, pages.length - 1)] : []

    // Another choice of tiles is wanted.
    signal chosen()

    // The next page, and after the last one the first.
    function turn() { page = page + 1 < pages.length ? page + 1 : 0 }

    function across(cells) { return cells * cellWidth + (cells - 1) * Sizes.gap }
    function down(cells) { return cells * cellHeight + (cells - 1) * Sizes.gap }
    function cellsAcross(name) {
        const isWide = name === "rate" || name === "position" || (name === "time" && Clock.shortTime.length > 5)
        return isWide ? Math.min(2, columns) : 1
    }
    function inPages(names) {
        const pages = []
        let rest = names
        while (rest.length > 0) {
            const page = isLow ? inLines(rest) : inCells(rest)
            // A page has room for the first tile at least, also where a message takes it.
            if (page.length === 0)
                page.push({ name: rest[0], x: 0, y: 0, width: across(cellsAcross(rest[0])), height: cellHeight })
            pages.push(page)
            rest = rest.filter(name => !page.some(tile => tile.name === name))
        }
        return pages
    }
    // As many as there is room for, one after the other. Lines have different heights.
    function inLines(names) {
        const list = []
        let y = 0
        let column = 0
        for (const name of names) {
            const wide = name === "rate" ? columns : cellsAcross(name)
            const high = name === "rate" ? mainHeight : cellHeight
            if (column + wide > columns) {
                column = 0
                y += cellHeight + Sizes.gap
            }
            if (y + high > room)
                break
            list.push({ name: name, x: column * (cellWidth + Sizes.gap), y: y, width: across(wide), height: high })
            column += wide
            if (name === "rate") {
                column = 0
                y += high + Sizes.gap
            }
        }
        return list
    }
    // Each in the first cells that are free. A tile that does not fit leaves its place to the next one.
    function inCells(names) {
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
    // Of the highest page: what stands beside the tiles keeps its place when the page turns.
    height: pages.reduce((most, page) => page.reduce((height, tile) => Math.max(height, tile.y + tile.height), most), 0)

    Parameter { id: tiles; name: "display.tiles" }

    Component {
        id: rate

        RateTile {
            row: Tiles.row("rate")
            isWide: grid.isLow && grid.columns > 1
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
