import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// The settings of a group, as the catalogue has them.
//
//     GroupPage { title: qsTr("Region"); group: "region"; navigator: page }
SettingsPanel {
    id: page

    property alias group: settings.group
    property alias search: settings.search

    hasSearch: true

    ParameterModel {
        id: settings
    }

    PagedList {
        anchors.fill: parent
        focus: true
        model: settings
        delegate: ParameterRow {
            width: ListView.view.width
            name: model.name
            navigator: page.navigator
        }
    }

}
