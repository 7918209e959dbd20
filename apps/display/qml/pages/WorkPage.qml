import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../controls"
import "work"

// The map fills the page. On it float the light bar, the buttons of one tap at the left hand, and the operator's tiles:
// beside the map, and below it where the window is higher than wide.
Item {
    id: page

    signal openSettings(string section)

    readonly property real freeHeight: height - (Sizes.isPortrait ? tiles.height + Sizes.margin : 0)
    readonly property real oneColumn: 6 * Sizes.target + 4 * Sizes.gap + 2 * Sizes.margin
                                      + (Sizes.isPortrait ? Sizes.target + 2 * Sizes.margin : 0)
    // Where the buttons have no room in one column, those of the line stand in a row at the foot. A message above the
    // page takes room from it.
    readonly property real leastHeight: oneColumn + 2 * Sizes.margin
    readonly property bool isLow: freeHeight < leastHeight
    readonly property real tilesWidth: tiles.names.length === 0 || Sizes.isPortrait ? 0 : tiles.width + Sizes.margin
    // Where nothing covers the map.
    readonly property rect free: Qt.rect(0, 0, width - tilesWidth, freeHeight)

    function turn() { headingUp.value = headingUp.value !== true }

    MapView {
        id: map

        objectName: "map"
        anchors.fill: parent
        model: Work.map
        free: page.free
        lengthUnit: length.metresPerUnit
        headingUp: headingUp.value === true
        mapColor: Scheme.map
        gridColor: Scheme.grid
        coverageColor: Scheme.coverage
        coverageEdgeColor: Scheme.coverageEdge
        trackColor: Scheme.track
        externalBoundaryColor: Scheme.externalBoundary
        internalBoundaryColor: Scheme.internalBoundary
        inactiveBoundariesColor: Scheme.inactiveBoundaries
        exclusionZoneColor: Scheme.exclusionZone
        vehicleColor: Scheme.vehicle
        crossHairsColor: Scheme.crossHairs

        // The arrow keys move the map while it has the focus. Tab alone gives it the focus: no arrow key leads away.
        readonly property bool takesArrows: true

        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("Map")
        onTurnWanted: page.turn()

        FocusRing {
            anchors { rightMargin: map.width - map.free.width; bottomMargin: map.height - map.free.height }
            radius: 0
        }
    }
    Quantity {
        id: length

        readonly property real metresPerUnit: unit !== "" ? parse("1") : 1

        kind: Quantity.Distance
        value: 0
    }
    Parameter { id: headingUp; name: "display.heading-up" }

    // Nothing needs it, but who drags the map means to move it.
    MouseArea {
        property point last

        objectName: "shield"
        anchors.fill: parent
        onPressed: function(mouse) { last = Qt.point(mouse.x, mouse.y) }
        onPositionChanged: function(mouse) {
            map.pan(mouse.x - last.x, mouse.y - last.y)
            last = Qt.point(mouse.x, mouse.y)
        }
    }
    LinePanel {
        id: line

        objectName: "linePanel"

        readonly property real from: mapButtons.x + mapButtons.width

        readonly property real to: turner.visible && !turner.isBeside ? turner.x - Sizes.gap + Sizes.margin
                                                                      : page.free.width

        x: from + (to - from - width) / 2
        y: Sizes.margin
        room: to - from - 2 * Sizes.margin
        // Without a position no line is followed.
        visible: Work.hasLine && Work.hasPosition
    }
    Panel {
        anchors.horizontalCenter: line.horizontalCenter
        y: Sizes.margin
        visible: !Work.hasPosition
        width: Math.min(waiting.implicitWidth + 4 * Sizes.margin, line.room)
        height: waiting.height + 2 * Sizes.margin

        TextLabel {
            id: waiting

            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 2 * Sizes.margin)
            text: qsTr("Waiting for a position")
            wraps: true
        }
    }
    MapButtons {
        id: mapButtons

        // All buttons at the foot: in a window of 480 px they leave less of a margin.
        readonly property real rowWidth: width + lineButtons.width + working.width + 2 * Sizes.gap

        x: page.isLow ? Math.min(Sizes.margin, (page.width - rowWidth) / 2) : Sizes.margin
        y: Sizes.margin
        room: page.freeHeight - 2 * Sizes.margin
        map: map
        headingUp: headingUp.value === true
        onTurn: page.turn()
    }
    LineButtons {
        id: lineButtons

        x: page.isLow ? mapButtons.x + mapButtons.width + Sizes.gap : Sizes.margin
        y: page.isLow ? page.free.height - height - Sizes.margin : mapButtons.y + mapButtons.height + 2 * Sizes.margin
        columns: page.isLow ? 4 : 2
        onChoose: lines.ask()
    }
    LineChoice { id: lines }
    WorkingButton {
        id: working

        readonly property bool isSquare: page.isLow || Sizes.isPortrait

        hasWords: !isSquare
        x: !isSquare ? page.width - width - Sizes.margin : page.isLow ? lineButtons.x + lineButtons.width + Sizes.gap
                                                                      : Sizes.margin
        y: !isSquare ? page.height - height - Sizes.margin : page.isLow ? lineButtons.y
                       : lineButtons.y + lineButtons.height + 2 * Sizes.margin
        width: isSquare ? Sizes.target : Math.max(tiles.width, implicitWidth)
    }
    ScaleBar {
        x: lineButtons.x + lineButtons.width + Sizes.gap
        y: page.free.height - height - Sizes.margin
        visible: !page.isLow && map.scaleLength > 0
        pixels: map.scaleLength
        metres: map.scaleMetres
    }
    TileGrid {
        id: tiles

        x: Sizes.isPortrait ? (page.width - width) / 2 : page.width - width - Sizes.margin
        y: Sizes.isPortrait ? page.height - height - Sizes.margin : Sizes.margin
        columns: Sizes.isSlim ? 2 : Sizes.isPortrait ? 4 : Sizes.isNarrow ? 1 : 2
        isLow: Sizes.isSlim || columns === 1
        cellWidth: columns === 1 ? Math.round(252 * Sizes.scale)
                   : Sizes.isPortrait ? Math.floor((page.width - 2 * Sizes.margin - (columns - 1) * Sizes.gap) / columns)
                                      : Math.round(184 * Sizes.scale)
        room: Sizes.isPortrait ? page.height * (Sizes.isSlim ? 0.42 : 1 / 3)
              : page.height - 2 * Sizes.margin - (page.height < page.leastHeight ? 0 : Sizes.target + Sizes.gap)
        onChosen: page.openSettings("tiles")
    }
    TileTurner {
        id: turner

        // A message that takes room moves the buttons of the line to the right. Where the turner has no room beside
        // them, it stands beside the light bar: above them there is none either below a long message.
        readonly property real from: page.isLow ? working.x + working.width + Sizes.gap : 0
        readonly property bool isBeside: from + width <= page.free.width

        x: isBeside ? Math.max(page.free.width - width - Sizes.margin, from) : page.free.width - width - Sizes.margin
        y: isBeside ? page.free.height - height - Sizes.margin : Sizes.margin
        tiles: tiles
    }
}
