import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// Language and formats, the time and where it comes from, the time zone, and the clock set by hand.
//
//     RegionPage { title: qsTr("Region"); navigator: page }
SettingsPanel {
    id: page

    hasSearch: true

    PagedColumn {
        anchors.fill: parent
        focus: true
        spacing: 0

        Facts {
            width: parent.width
            count: 3
            leastWidth: Sizes.row * 7

            Fact { title: qsTr("Date"); text: Clock.date }
            Fact { title: qsTr("Time"); text: Clock.time }
            Fact { title: qsTr("Time zone"); text: Clock.offsetText }
        }

        SettingRow {
            width: parent.width
            title: qsTr("Date and time")
            meaning: Clock.sourceText
            error: Clock.error

            PushButton {
                objectName: "setClock"
                text: qsTr("Set by hand")
                onClicked: setting.ask()
            }
        }

        Repeater {
            model: ["region.language", "region.decimal-point", "region.24-hour-clock", "region.month-first",
                    "clock.offset-by-operator", "clock.offset-hours", "clock.offset-minutes"]

            ParameterRow {
                width: parent.width
                name: modelData
                navigator: page.navigator
            }
        }
    }

    ClockEntry {
        id: setting
    }
}
