import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// The versions of what the display is made of, and the licences.
//
//     AboutPage { title: qsTr("About"); navigator: page }
SettingsPanel {
    id: page

    hasSearch: true

    PagedList {
        anchors.fill: parent
        focus: true
        model: About
        delegate: SettingRow {
            width: ListView.view.width
            title: model.name
            meaning: model.text

            Column {
                readonly property bool isStacked: parent.isStacked

                TextLabel {
                    x: parent.isStacked ? 0 : parent.width - width
                    size: Sizes.row
                    text: model.version
                }

                TextLabel {
                    x: parent.isStacked ? 0 : parent.width - width
                    muted: true
                    text: model.licence
                }
            }
        }
    }
}
