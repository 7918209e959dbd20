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
                TextLabel {
                    anchors.right: parent.right
                    size: Sizes.row
                    text: model.version
                }

                TextLabel {
                    anchors.right: parent.right
                    muted: true
                    text: model.licence
                }
            }
        }
    }
}
