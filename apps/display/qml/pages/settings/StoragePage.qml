import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// How full the drives and the memory are, and what the terminal writes to the stick.
//
//     StoragePage { title: qsTr("Storage"); navigator: page }
SettingsPanel {
    id: page

    hasSearch: true

    readonly property bool isFree: transfer.state !== Transfer.Running

    function used(free, total) {
        return total > 0 ? 1 - free / total : 0
    }

    Transfer {
        id: transfer
    }

    // Above the rows, which have more than one page in a small window: it is seen from each of them.
    TransferState {
        id: state
        width: parent.width
        transfer: transfer
    }

    PagedColumn {
        anchors.top: state.visible ? state.bottom : parent.top
        anchors.topMargin: state.visible ? Sizes.gap * 2 : 0
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        spacing: Sizes.gap * 2

        Gauge {
            width: parent.width
            title: qsTr("Internal drive")
            text: Drives.internalText
            fraction: page.used(Drives.internalFree, Drives.internalTotal)
            needsAttention: fraction > 0.9
        }

        Gauge {
            width: parent.width
            title: qsTr("Stick")
            text: Drives.hasStick ? Drives.stickText : qsTr("No stick is plugged in.")
            fraction: Drives.hasStick ? page.used(Drives.stickFree, Drives.stickTotal) : 0
            needsAttention: fraction > 0.9
        }

        Gauge {
            width: parent.width
            title: qsTr("Memory")
            text: Drives.memoryText
            fraction: page.used(Drives.memoryFree, Drives.memoryTotal)
            needsAttention: fraction > 0.9
        }

        SettingRow {
            width: parent.width
            title: qsTr("Logs")
            meaning: qsTr("Writes all log files to the stick")

            PushButton {
                icon: "export"
                text: qsTr("Export")
                accessibleName: qsTr("Export the logs")
                enabled: page.isFree && Drives.hasStick
                onClicked: transfer.exportLogs()
            }
        }

        SettingRow {
            width: parent.width
            title: qsTr("Profiles")
            meaning: qsTr("Takes the settings to another display, or brings them back from the stick")

            PushButton {
                text: qsTr("Open")
                accessibleName: qsTr("Open the profiles")
                onClicked: page.navigator.open("ProfilesPage", {})
            }
        }

        SettingRow {
            width: parent.width
            title: qsTr("Support")
            meaning: qsTr("Writes logs, settings and versions in one file; without the names of clients, farms and fields")

            PushButton {
                icon: "export"
                text: qsTr("Write")
                accessibleName: qsTr("Write the file for support without names")
                enabled: page.isFree && Drives.hasStick
                onClicked: transfer.writeSupport(true)
            }
        }

        SettingRow {
            width: parent.width
            title: qsTr("Support, with names")
            meaning: qsTr("The same file, with all names and places")

            PushButton {
                icon: "export"
                text: qsTr("Write")
                accessibleName: qsTr("Write the file for support with names")
                enabled: page.isFree && Drives.hasStick
                onClicked: transfer.writeSupport(false)
            }
        }

        ParameterRow {
            width: parent.width
            name: "system.internal-drive"
            navigator: page.navigator
        }

        ParameterRow {
            width: parent.width
            name: "system.external-drive"
            navigator: page.navigator
        }
    }
}
