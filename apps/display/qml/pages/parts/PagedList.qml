import QtQuick 2.15
import QtQuick.Window 2.15
import "../../controls"

// A list of a model that shows whole rows only, with two buttons to turn its pages: nothing needs a drag. Rows may have
// different heights, none more than the list's own.
//
//     PagedList { anchors.fill: parent; model: names; delegate: NameRow { width: ListView.view.width } }
FocusScope {
    id: list

    property alias model: view.model
    property alias delegate: view.delegate
    property alias count: view.count
    property alias spacing: view.spacing

    property int firstRow: 0
    property int lastRow: -1
    // What the two buttons take of its width; 0 while they are not there.
    readonly property real turnerWidth: turner.visible ? turner.width + Sizes.gap * 2 : 0
    readonly property Item focused: Window.activeFocusItem

    function turnDown() {
        if (lastRow < view.count - 1)
            view.positionViewAtIndex(lastRow + 1, ListView.Beginning)
        measure()
    }

    function turnUp() {
        if (firstRow > 0) {
            view.positionViewAtIndex(firstRow - 1, ListView.End)
            beginWithWholeRow()
        }
        measure()
    }

    function beginWithWholeRow() {
        var first = view.indexAt(0, view.contentY + view.spacing + 1)
        var row = view.itemAtIndex(first)
        view.positionViewAtIndex(row && row.y < view.contentY - 1 ? first + 1 : first, ListView.Beginning)
    }

    // FocusKeys calls it before a key moves the focus down or up: the next row comes into view, else there is none.
    function reveal(isDown) {
        var row = focusedRow()
        if (isDown && row >= 0 && row === lastRow && lastRow < view.count - 1) {
            view.positionViewAtIndex(lastRow + 1, ListView.End)
            beginWithWholeRow()
            measure()
        } else if (!isDown && row > 0 && row === firstRow) {
            view.positionViewAtIndex(row - 1, ListView.Beginning)
            measure()
        }
    }

    // Of the row that has the focus; -1 without.
    function focusedRow() {
        for (var item = focused; item; item = item.parent) {
            if (item.parent === view.contentItem)
                return view.indexAt(0, item.y + 1)
        }
        return -1
    }

    function show(index) {
        measure()
        if (index < firstRow || index > lastRow)
            view.positionViewAtIndex(index, ListView.Beginning)
        measure()
    }

    // Shows the row with as many rows above it as fit.
    function openAt(index) {
        view.positionViewAtIndex(index, ListView.End)
        beginWithWholeRow()
        show(index)
    }

    // Finds the rows that are whole.
    function measure() {
        var index = Math.max(0, view.indexAt(0, view.contentY + view.spacing + 1))
        var bottom = 0
        firstRow = index
        for (var row = view.itemAtIndex(index); row; row = view.itemAtIndex(++index)) {
            if (index > firstRow && row.y + row.height > view.contentY + view.height + 1)
                break
            bottom = row.y + row.height - view.contentY
        }
        lastRow = index - 1
        whole.height = view.moving ? view.height : Math.min(view.height, bottom)
    }

    // The keyboard reaches rows that are not whole.
    onFocusedChanged: {
        var row = focusedRow()
        if (row >= 0)
            show(row)
    }

    Keys.onPressed: function (event) {
        event.accepted = event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp
        if (event.key === Qt.Key_PageDown)
            turnDown()
        else if (event.key === Qt.Key_PageUp)
            turnUp()
    }

    // Before the rows, so that Tab reaches it without a walk through all of them.
    PageTurner {
        id: turner
        anchors.right: parent.right
        hasUp: list.firstRow > 0
        hasDown: list.lastRow < list.count - 1
        onUp: list.turnUp()
        onDown: list.turnDown()
    }

    Item {
        id: whole
        anchors.left: parent.left
        anchors.leftMargin: -Sizes.gap
        anchors.right: parent.right
        anchors.rightMargin: list.turnerWidth - Sizes.line
        clip: true

        ListView {
            id: view
            // What hangs over the edges is not cut off: the hook of a J, the line around a button.
            x: Sizes.gap
            width: parent.width - x - Sizes.line
            height: list.height
            cacheBuffer: 0
            // Its current row would take the focus, also where that is no button.
            keyNavigationEnabled: false
            currentIndex: -1
            boundsBehavior: Flickable.StopAtBounds
            snapMode: ListView.SnapToItem
            // The last page too begins with a whole row.
            footer: Item { width: 1; height: Math.max(0, list.height - Sizes.target) }

            // A row is made, or grows. The height of the content may stay: it counts with rows that are not made yet.
            readonly property int made: contentItem.children.length
            readonly property real extent: contentItem.childrenRect.height

            onMadeChanged: measuring.restart()
            onExtentChanged: measuring.restart()
            onContentYChanged: measuring.restart()
            onContentHeightChanged: measuring.restart()
            onHeightChanged: measuring.restart()
            onCountChanged: measuring.restart()
            onMovingChanged: measuring.restart()

            // Once for all changes of an event.
            Timer {
                id: measuring
                interval: 0
                onTriggered: list.measure()
            }
        }
    }
}
