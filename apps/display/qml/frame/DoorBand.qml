import QtQuick 2.15
import CabSettings 1.0
import "../controls"

// The doors to the five pages.
Rectangle {
    id: band

    property string page
    readonly property var rows: [
        { page: "work", file: "WorkPage.qml", icon: "tractor", title: qsTr("Work") },
        { page: "fields", file: "FieldsPage.qml", icon: "field", title: qsTr("Fields") },
        { page: "receiver", file: "ReceiverPage.qml", icon: "receiver", title: qsTr("Receiver") },
        { page: "logs", file: "LogsPage.qml", icon: "logs", title: qsTr("Logs") },
        { page: "settings", file: "SettingsPage.qml", icon: "settings", title: qsTr("Settings") }
    ]

    // Every door has its word: where five do not fit beside each other, they stand in two lines.
    readonly property int columns: Sizes.isSlim ? 3 : rows.length
    readonly property int lines: Math.ceil(rows.length / columns)

    signal open(string page)

    function row(page) { return rows.find(row => row.page === page) }

    height: Sizes.doorBand
    color: Scheme.background

    Rectangle {
        width: parent.width
        height: Sizes.line
        color: Scheme.line
    }
    Item {
        anchors { fill: parent; margins: Sizes.isCompact ? 2 : Sizes.gap; leftMargin: Sizes.margin; rightMargin: Sizes.margin }

        Repeater {
            model: band.rows

            Door {
                readonly property int line: Math.floor(index / band.columns)
                readonly property int inLine: Math.min(band.columns, band.rows.length - line * band.columns)

                objectName: "door." + modelData.page
                x: (index - line * band.columns) * (width + Sizes.gap)
                y: line * (height + Sizes.gap)
                width: (parent.width - (inLine - 1) * Sizes.gap) / inLine
                height: (parent.height - (band.lines - 1) * Sizes.gap) / band.lines
                title: modelData.title
                icon: modelData.icon
                isOpen: band.page === modelData.page
                onClicked: band.open(modelData.page)
            }
        }
    }
}
