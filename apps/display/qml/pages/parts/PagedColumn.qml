import QtQuick 2.15
import QtQuick.Window 2.15
import "../../controls"

// Rows below each other. Where they do not fit, only whole ones show, with two buttons to turn the page.
//
//     PagedColumn { anchors.fill: parent; TextLabel { text: qsTr("Clock") } ParameterRow { width: parent.width } }
FocusScope {
    id: list

    default property alias rows: column.data
    property alias spacing: column.spacing

    property int firstRow: 0
    property int lastRow: -1
    property int shownCount: 0
    readonly property bool hasPages: column.height > height + 1
    readonly property Item focused: Window.activeFocusItem

    function shownRows() {
        var rows = []
        for (var index = 0; index < column.children.length; ++index) {
            if (column.children[index].visible && column.children[index].height > 0)
                rows.push(column.children[index])
        }
        return rows
    }

    function measure() {
        var rows = shownRows()
        shownCount = rows.length
        firstRow = 0
        while (hasPages && firstRow < rows.length - 1 && rows[firstRow].y < area.contentY - 1)
            ++firstRow
        if (!area.moving)
            area.contentY = rows.length > 0 && hasPages ? rows[firstRow].y : 0
        var bottom = 0
        for (lastRow = firstRow; lastRow < rows.length; ++lastRow) {
            var end = rows[lastRow].y + rows[lastRow].height - area.contentY
            if (lastRow > firstRow && end > height + 1)
                break
            bottom = end
        }
        --lastRow
        whole.height = area.moving ? height : Math.min(height, bottom)
    }

    function turnDown() {
        var rows = shownRows()
        if (lastRow < rows.length - 1)
            area.contentY = rows[lastRow + 1].y
        measure()
    }

    function turnUp() {
        var rows = shownRows()
        if (firstRow > 0) {
            var first = firstRow - 1
            var bottom = rows[first].y + rows[first].height
            while (first > 0 && bottom - rows[first - 1].y <= height)
                --first
            area.contentY = rows[first].y
        }
        measure()
    }

    // The keyboard reaches rows that are on another page.
    onFocusedChanged: {
        for (var item = focused; item; item = item.parent) {
            if (item.parent !== column)
                continue
            var index = shownRows().indexOf(item)
            if (index >= 0 && (index < firstRow || index > lastRow))
                area.contentY = item.y
            measure()
            return
        }
    }

    Keys.onPressed: function (event) {
        if (event.key !== Qt.Key_PageDown && event.key !== Qt.Key_PageUp)
            return
        if (event.key === Qt.Key_PageDown)
            turnDown()
        else
            turnUp()
        event.accepted = true
    }

    onHeightChanged: measuring.restart()

    // Once for all changes of an event.
    Timer {
        id: measuring
        interval: 0
        running: true
        onTriggered: list.measure()
    }

    // Before the rows, so that Tab reaches it without a walk through all of them.
    PageTurner {
        id: turner
        anchors.right: parent.right
        hasUp: list.firstRow > 0
        hasDown: list.lastRow < list.shownCount - 1
        onUp: list.turnUp()
        onDown: list.turnDown()
    }

    Item {
        id: whole
        anchors.left: parent.left
        anchors.leftMargin: -Sizes.gap
        anchors.right: turner.visible ? turner.left : parent.right
        anchors.rightMargin: (turner.visible ? Sizes.gap * 2 : 0) - Sizes.line
        clip: true

        Flickable {
            id: area
            // What hangs over the edges is not cut off: the hook of a J, the line around a button.
            x: Sizes.gap
            width: parent.width - x - Sizes.line
            height: list.height
            contentHeight: column.height
            bottomMargin: list.hasPages ? height : 0
            interactive: list.hasPages
            boundsBehavior: Flickable.StopAtBounds
            onMovingChanged: measuring.restart()

            Column {
                id: column
                width: parent.width
                spacing: Sizes.gap
                onHeightChanged: measuring.restart()
            }
        }
    }
}
