import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// The colours of the two schemes: each element with its colour, and the contrasts in which it takes part. Shows the
// scheme in force first.
//
//     ColorsPage { title: qsTr("Colours"); navigator: page }
SettingsPanel {
    id: page

    hasSearch: true

    property bool isDay: Scheme.isDay

    tools: Segments {
        choices: [{ value: true, text: qsTr("Day") }, { value: false, text: qsTr("Night") }]
        value: page.isDay
        onChosen: function (chosen) { page.isDay = chosen }
    }

    ParameterModel {
        id: elements
        group: page.isDay ? "colors.day" : "colors.night"
    }

    ContrastModel {
        id: pairs
        day: page.isDay
    }

    PagedList {
        anchors.fill: parent
        focus: true
        model: elements
        delegate: ColorRow {
            width: ListView.view.width
            name: model.name
            contrasts: pairs
            navigator: page.navigator
        }
    }
}
