import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// Which tiles stand beside the map, and in which order: the chosen ones first. The first one rules the page.
//
//     TilesPage { title: qsTr("Tiles"); navigator: page }
SettingsPanel {
    id: page

    readonly property var chosen: parameter.text === "" ? [] : parameter.text.split(",")
    // The tiles in the order of the page.
    readonly property var rows: {
        var rest = parameter.choices.filter(function (choice) { return page.chosen.indexOf(choice.value) < 0 })
        var first = chosen.map(function (name) {
            return parameter.choices.filter(function (choice) { return choice.value === name })[0]
        })
        return first.concat(rest)
    }

    function take(names) {
        parameter.set(names.join(","))
    }

    function toggle(name) {
        take(chosen.indexOf(name) < 0 ? chosen.concat([name])
                                      : chosen.filter(function (other) { return other !== name }))
    }

    function moveUp(name) {
        var names = chosen.slice()
        var place = names.indexOf(name)
        names.splice(place, 1)
        names.splice(place - 1, 0, name)
        take(names)
    }

    title: parameter.title
    hasBack: true

    tools: IconButton {
        icon: "reset"
        accessibleName: qsTr("Back to the first choice")
        enabled: !parameter.isDefault
        onClicked: parameter.reset()
    }

    Parameter {
        id: parameter
        name: "display.tiles"
    }

    TextLabel {
        id: problem
        width: parent.width
        visible: text !== ""
        wraps: true
        color: Scheme.attention
        text: parameter.error
    }

    PagedList {
        anchors.top: problem.visible ? problem.bottom : parent.top
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        // By number: the rows stay when their order changes.
        model: page.rows.length
        delegate: SettingRow {
            readonly property var tile: page.rows[index]
            readonly property bool isShown: index < page.chosen.length

            width: ListView.view.width
            title: tile.text

            Row {
                spacing: Sizes.gap

                IconButton {
                    visible: isShown
                    enabled: index > 0
                    icon: "up"
                    accessibleName: qsTr("%1 further ahead").arg(tile.text)
                    onClicked: page.moveUp(tile.value)
                }

                Segments {
                    choices: [{ value: true, text: qsTr("Shown") }, { value: false, text: qsTr("Hidden") }]
                    value: isShown
                    onChosen: function (chosen) {
                        if (chosen !== isShown)
                            page.toggle(tile.value)
                    }
                }
            }
        }
    }
}
