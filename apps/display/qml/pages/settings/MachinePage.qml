import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"
import "../parts"

// Vehicle, implement and its measures, and which other items of the machine are in use.
//
//     MachinePage { title: qsTr("Machine"); navigator: page }
SettingsPanel {
    id: page

    hasSearch: true

    Quantity {
        id: width
        kind: Quantity.Distance
        value: Work.implementWidth
    }

    Quantity {
        id: behind
        kind: Quantity.Distance
        value: Work.implementBehind
    }

    PagedColumn {
        anchors.fill: parent
        focus: true
        spacing: 0

        ParameterRow {
            width: parent.width
            name: "active.vehicle"
            navigator: items
        }

        ParameterRow {
            width: parent.width
            name: "active.implement"
            navigator: items
        }

        SettingRow {
            width: parent.width
            title: qsTr("Implement width")
            meaning: qsTr("Decides the guidance lines beside each other, and the area done")

            ValueButton {
                objectName: "implementWidth"
                room: parent.room
                value: width.text
                accessibleName: qsTr("Implement width")
                onClicked: widthPad.open()
            }
        }

        SettingRow {
            width: parent.width
            title: qsTr("Implement behind the antenna")
            meaning: qsTr("How far the ground is covered behind the vehicle's place")

            ValueButton {
                room: parent.room
                value: behind.text
                accessibleName: qsTr("Implement behind the antenna")
                onClicked: behindPad.open()
            }
        }

        Repeater {
            model: ["active.sprayer", "active.boom-leveller", "active.steering-profile", "system.implement-folder"]

            ParameterRow {
                width: parent.width
                name: modelData
                navigator: page.navigator
            }
        }
    }

    // Vehicles and implements are chosen from what there is, or named anew.
    QtObject {
        id: items

        function edit(parameter) {
            page.navigator.open("ItemPage", { name: parameter.name })
        }
    }

    Keypad {
        id: widthPad
        title: qsTr("Implement width")
        quantity: width
        least: Work.widthLeast
        greatest: Work.widthGreatest
        onAccepted: function (value) { Work.implementWidth = value }
    }

    Keypad {
        id: behindPad
        title: qsTr("Implement behind the antenna")
        quantity: behind
        least: Work.behindLeast
        greatest: Work.behindGreatest
        onAccepted: function (value) { Work.implementBehind = value }
    }
}
