import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// What a profile would change, and its import. Where a setting was changed here and there, the operator says which of
// the two values is kept.
//
//     ProfilePage { title: "tractor"; file: "/media/stick/tractor.profile"; navigator: page }
SettingsPanel {
    id: page

    property string file

    // Keeps what conflicts: "ours" or "theirs"; "none" until the operator has said so.
    property string resolution: "none"

    readonly property bool hasConflicts: transfer.conflicts.length > 0
    readonly property bool isCompared: transfer.state === Transfer.Idle

    hasBack: true
    Component.onCompleted: transfer.compareProfile(file)

    tools: PushButton {
        text: qsTr("Import")
        primary: enabled
        enabled: page.isCompared && transfer.changes.length + transfer.conflicts.length > 0
                 && (!page.hasConflicts || page.resolution !== "none")
        onClicked: transfer.importProfile(page.file, page.resolution)
    }

    Transfer {
        id: transfer
    }

    TransferState {
        id: state
        width: parent.width
        transfer: transfer
        isReading: true
    }

    TextLabel {
        width: parent.width
        visible: page.isCompared && transfer.changes.length + transfer.conflicts.length === 0
        muted: true
        wraps: true
        text: qsTr("The display has these settings already.")
    }

    SettingRow {
        id: choice
        width: parent.width
        visible: page.isCompared && page.hasConflicts
        title: qsTr("Changed here and in the profile")
        meaning: qsTr("Which value the settings below shall have")

        Segments {
            room: parent.room
            choices: [{ value: "ours", text: qsTr("Ours") }, { value: "theirs", text: qsTr("Theirs") }]
            value: page.resolution
            onChosen: function (chosen) { page.resolution = chosen }
        }
    }

    PagedList {
        anchors.top: choice.visible ? choice.bottom : state.visible ? state.bottom : parent.top
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        visible: page.isCompared
        model: transfer.conflicts.concat(transfer.changes)
        delegate: Difference {
            width: ListView.view.width
            most: ListView.view.height
            title: modelData.title
            ours: modelData.ours
            theirs: modelData.theirs
            kept: index >= transfer.conflicts.length ? "theirs" : page.resolution
            isConflict: index < transfer.conflicts.length
        }
    }
}
