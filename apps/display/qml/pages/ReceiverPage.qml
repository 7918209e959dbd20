import QtQuick 2.15
import CabSettings 1.0
import "../controls"
import "parts"

// Where the positions come from, and how good they are now.
//
//     ReceiverPage { anchors.fill: parent }
Item {
    id: page

    // From the first letters of an address to what it is.
    readonly property string source: {
        var address = parameter.text
        if (address === "simulator")
            return "simulator"
        return address.indexOf("tcp://") === 0 ? "tcp" : address.indexOf("serial://") === 0 ? "serial" : "file"
    }
    readonly property var beginnings: ({ file: "/", tcp: "tcp://", serial: "serial:///dev/" })

    function take(kind) {
        if (kind === "simulator")
            parameter.set("simulator")
        else
            naming.ask(kind === source ? parameter.text : beginnings[kind])
    }

    Parameter {
        id: parameter
        name: "receiver.address"
    }

    Quantity {
        id: latitude
        kind: Quantity.Latitude
        value: Receiver.hasFix ? Receiver.latitude : NaN
    }

    Quantity {
        id: longitude
        kind: Quantity.Longitude
        value: Receiver.hasFix ? Receiver.longitude : NaN
    }

    Quantity {
        id: altitude
        kind: Quantity.Altitude
        value: Receiver.hasFix ? Receiver.altitude : NaN
    }

    Quantity {
        id: speed
        kind: Quantity.Speed
        value: Receiver.hasFix ? Receiver.speed : NaN
    }

    SettingsPanel {
        anchors.fill: parent
        anchors.margins: Sizes.margin
        title: qsTr("Receiver")

        tools: PushButton {
            icon: Receiver.running ? "pause" : "play"
            text: Receiver.running ? qsTr("Stop") : qsTr("Start")
            primary: !Receiver.running
            onClicked: Receiver.running = !Receiver.running
        }

        PagedColumn {
            anchors.fill: parent
            focus: true
            spacing: 0

            SettingRow {
                width: parent.width
                title: Receiver.stateText
                meaning: Receiver.reason
                error: parameter.error

                Segments {
                    room: parent.room
                    choices: [
                        { value: "simulator", text: qsTr("Simulator") },
                        { value: "file", text: qsTr("File") },
                        { value: "tcp", text: qsTr("Network") },
                        { value: "serial", text: qsTr("Serial") }
                    ]
                    value: page.source
                    onChosen: function (chosen) { page.take(chosen) }
                }
            }

            SettingRow {
                width: parent.width
                visible: page.source !== "simulator"
                title: qsTr("Address")

                ValueButton {
                    objectName: "address"
                    room: parent.room
                    value: parameter.shownText
                    accessibleName: qsTr("Address")
                    onClicked: naming.ask(parameter.text)
                }
            }

            Facts {
                width: parent.width
                count: 5
                leastWidth: Sizes.row * 6

                Fact { title: qsTr("Fix"); text: Receiver.fixText; isMain: true }
                Fact { title: qsTr("Age"); text: Receiver.ageText; isMain: true }
                Fact { title: qsTr("Satellites"); text: Receiver.satellitesText; isMain: true }
                Fact { title: qsTr("HDOP"); text: Receiver.hdopText; isMain: true }
                Fact { title: qsTr("Time (UTC)"); text: Receiver.utc; isMain: true }
            }

            Facts {
                width: parent.width

                Fact { title: latitude.title; text: latitude.text }
                Fact { title: longitude.title; text: longitude.text }
                Fact { title: altitude.title; text: altitude.text }
                Fact { title: speed.title; text: speed.text }
            }

            Facts {
                width: parent.width

                Fact { title: qsTr("Lines"); text: Receiver.linesText }
                Fact { title: qsTr("Sentences"); text: Receiver.sentencesText }
                Fact { title: qsTr("Bad checksums"); text: Receiver.badChecksumsText }
                Fact { title: qsTr("Damaged lines"); text: Receiver.damagedLinesText }
            }
        }
    }

    NameEntry {
        id: naming
        title: qsTr("Address of the receiver")
        hint: parameter.accepts
        hints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase | Qt.ImhLatinOnly
        check: function (text) { return parameter.check(text) }
        onTyped: function (text) { parameter.set(text) }
    }
}
