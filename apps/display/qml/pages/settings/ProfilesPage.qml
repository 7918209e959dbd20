import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// The settings as a profile on the stick: written for another display or as a backup, and the profiles that are there.
//
//     ProfilesPage { title: qsTr("Profiles"); navigator: page }
SettingsPanel {
    id: page

    property var files: transfer.profiles()

    title: qsTr("Profiles")
    hasBack: true

    tools: PushButton {
        objectName: "export"
        icon: "export"
        text: qsTr("Export")
        enabled: Drives.hasStick && transfer.state !== Transfer.Running
        onClicked: naming.ask("")
    }

    Transfer {
        id: transfer
        onStateChanged: page.files = profiles()
        onProfilesChanged: page.files = profiles()
    }

    Connections {
        target: Drives

        function onHasStickChanged() { page.files = transfer.profiles() }
    }

    TransferState {
        id: state
        width: parent.width
        transfer: transfer
    }

    TextLabel {
        anchors.top: list.top
        width: parent.width
        visible: page.files.length === 0
        muted: true
        wraps: true
        text: Drives.hasStick ? qsTr("There is no profile on the stick.") : qsTr("No stick is plugged in.")
    }

    PagedList {
        id: list
        anchors.top: state.visible ? state.bottom : parent.top
        anchors.topMargin: state.visible ? Sizes.gap : 0
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        model: page.files
        spacing: Sizes.gap
        delegate: ListRow {
            objectName: "profile"
            width: ListView.view.width
            title: modelData.name
            detail: modelData.text
            opens: true
            onClicked: page.navigator.open("ProfilePage", { title: modelData.name, file: modelData.file })
        }
    }

    NameEntry {
        id: naming
        title: qsTr("Name of the profile")
        check: function (text) { return transfer.checkName(text) }
        onTyped: function (text) { transfer.exportProfile(text, []) }
    }
}
