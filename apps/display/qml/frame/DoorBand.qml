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

    readonly property int leastWidthOfWords: 640

    signal open(string page)

    function row(page) { return rows.find(row => row.page === page) }

    height: Sizes.doorBand
    color: Scheme.background

    Rectangle {
        width: parent.width
        height: Sizes.line
        color: Scheme.line
    }
    Row {
        anchors { fill: parent; margins: Sizes.isCompact ? 2 : Sizes.gap; leftMargin: Sizes.margin; rightMargin: Sizes.margin }
        spacing: Sizes.gap

        Repeater {
            model: band.rows

            Door {
                objectName: "door." + modelData.page
                width: (parent.width - (band.rows.length - 1) * Sizes.gap) / band.rows.length
                height: parent.height
                title: modelData.title
                icon: modelData.icon
                hasWord: band.width >= band.leastWidthOfWords
                isOpen: band.page === modelData.page
                onClicked: band.open(modelData.page)
            }
        }
    }
}
