import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// One setting: its name, what it does, and its choice. What needs more room than the row has opens a page or a question
// of its own.
//
//     ParameterRow { width: 900; name: "units.metric"; navigator: page }
SettingRow {
    id: row

    property alias name: parameter.name
    // What opens pages: see SettingsPage.
    property var navigator

    readonly property bool isSegmented: parameter.choices.length > 0 && parameter.choices.length <= 4
                                        && parameter.type !== "string"
    // Its names would fill the row; they stand on a page of their own.
    readonly property bool isList: parameter.type === "string" && parameter.choices.length > 0
    readonly property alias parameter: parameter

    objectName: "parameter row"
    most: ListView.view ? ListView.view.height : 0
    title: parameter.title
    meaning: parameter.meaning
    error: parameter.error

    Row {
        id: controls

        readonly property real room: parent.room - (reset.visible ? reset.width + spacing : 0)

        spacing: Sizes.gap

        IconButton {
            id: reset
            visible: parameter.defaultValue !== undefined && !parameter.isDefault
            icon: "reset"
            accessibleName: qsTr("%1: back to the first value").arg(parameter.title)
            onClicked: parameter.reset()
        }

        Loader {
            readonly property real room: controls.room

            sourceComponent: row.isSegmented ? segments : parameter.type === "color" ? swatch : button
        }
    }

    Parameter {
        id: parameter
    }

    Component {
        id: segments

        Segments {
            room: parent ? parent.room : 0
            choices: parameter.choices
            value: parameter.value
            onChosen: function (chosen) { parameter.value = chosen }
        }
    }

    Component {
        id: swatch

        Swatch {
            color: parameter.value
            accessibleName: parameter.title
            onClicked: row.navigator.edit(parameter)
        }
    }

    Component {
        id: button

        ValueButton {
            objectName: parameter.name
            room: Math.min(parent ? parent.room : 0, Sizes.row * 16)
            value: row.isList ? qsTr("Open") : parameter.shownText !== "" ? parameter.shownText : "—"
            accessibleName: parameter.title
            onClicked: row.navigator.edit(parameter)
        }
    }
}
