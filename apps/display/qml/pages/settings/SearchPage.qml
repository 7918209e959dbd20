import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// The settings whose name, meaning or choices have every word that is searched for.
//
//     SearchPage { navigator: page }
SettingsPanel {
    id: page

    title: qsTr("Search")
    hasBack: true

    ParameterModel {
        id: found
        search: entry.text
    }

    TextEntry {
        id: entry
        width: parent.width
        focus: true
        icon: "search"
        placeholder: qsTr("Words of a setting")
        hints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        // What was found may lie below the keyboard on the screen.
        onAccepted: Qt.inputMethod.hide()
    }

    TextLabel {
        anchors.top: list.top
        width: parent.width
        visible: list.visible && found.count === 0
        muted: true
        wraps: true
        text: qsTr("No setting has these words.")
    }

    PagedList {
        id: list
        anchors.top: entry.bottom
        anchors.topMargin: Sizes.gap
        anchors.bottom: parent.bottom
        width: parent.width
        visible: height >= Sizes.target
        model: found
        delegate: ParameterRow {
            width: ListView.view.width
            name: model.name
            navigator: page.navigator
        }
    }
}
