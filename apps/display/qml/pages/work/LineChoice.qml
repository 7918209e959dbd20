import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "../../controls"
import "../parts"

// The saved lines of the field: a tap on one follows it, the button at its right renames it. New names the line that is
// set next. Stop ends following; the files stay.
//
//     LineChoice { id: lines }
//     …
//     lines.ask()
Overlay {
    id: choice

    objectName: "lineChoice"

    property var names: []
    // A line belongs to the job, which may be read at this moment.
    readonly property bool isReady: !Work.loading
    readonly property real spacing: Sizes.isCompact ? Sizes.gap : 2 * Sizes.gap

    function read() { names = Selections.list("abLine") }
    function ask() {
        reason.text = ""
        read()
        open()
    }
    function follow(name) { say(Work.loadLine(name)) }

    // Closes, or says why nothing was done.
    function say(problem) {
        if (problem === "") {
            close()
            return
        }
        reason.text = problem
        read()
        open()
    }

    Connections {
        target: choice.isOpen ? Selections : null

        function onChanged() { choice.read() }
    }

    Column {
        width: Math.min(choice.roomWidth, Sizes.row * 20)
        spacing: choice.spacing

        Item {
            id: head
            width: parent.width
            height: Math.max(title.height, add.height)

            TextLabel {
                id: title
                anchors { left: parent.left; right: add.left; rightMargin: Sizes.gap; verticalCenter: parent.verticalCenter }
                size: Sizes.title
                font.bold: true
                wraps: true
                color: Scheme.title
                text: line.title
            }

            PushButton {
                id: add
                objectName: "newLine"
                anchors.right: parent.right
                icon: "plus"
                text: qsTr("New")
                enabled: choice.isReady
                onClicked: {
                    choice.close()
                    naming.ask("")
                }
            }
        }

        PagedList {
            readonly property real room: choice.roomHeight - head.height - foot.height - 2 * choice.spacing
                                         - (reason.visible ? reason.height + choice.spacing : 0)

            width: parent.width
            height: Math.max(0, Math.min(room, choice.names.length * (Sizes.target + spacing) - spacing))
            spacing: Sizes.gap
            model: choice.names
            delegate: Item {
                width: ListView.view.width
                height: row.implicitHeight

                ListRow {
                    id: row

                    objectName: "line." + modelData
                    anchors { left: parent.left; right: change.left; rightMargin: Sizes.gap }
                    title: modelData
                    chosen: Work.hasLine && modelData === Selections.abLine
                    enabled: choice.isReady
                    onClicked: choice.follow(modelData)
                }
                IconButton {
                    id: change

                    objectName: "rename." + modelData
                    anchors.right: parent.right
                    height: row.height
                    icon: "pencil"
                    accessibleName: qsTranslate("FieldsPage", "Rename %1").arg(modelData)
                    enabled: choice.isReady
                    onClicked: {
                        choice.close()
                        renaming.before = modelData
                        renaming.ask(modelData)
                    }
                }
            }
        }

        TextLabel {
            id: reason
            width: parent.width
            visible: text !== ""
            wraps: true
            color: Scheme.attention
        }

        Row {
            id: foot
            anchors.right: parent.right
            spacing: Sizes.gap * 2

            PushButton {
                text: qsTr("Cancel")
                onClicked: choice.close()
            }

            PushButton {
                objectName: "stopLine"
                icon: "close"
                text: qsTr("Stop")
                enabled: choice.isReady && Work.hasA
                onClicked: choice.say(Work.clearLine())
            }
        }
    }

    Parameter {
        id: line
        name: "active.ab-line"
    }

    NameEntry {
        id: naming
        title: line.title
        hint: line.accepts
        check: function (text) { return line.check(text) }
        onTyped: function (text) { choice.follow(text) }
    }

    NameEntry {
        id: renaming

        property string before

        title: qsTranslate("FieldsPage", "Rename %1").arg(before)
        hint: line.accepts
        check: function (text) { return Selections.checkLineName(before, text) }
        onTyped: function (text) {
            const problem = Work.renameLine(before, text)
            choice.ask()
            reason.text = problem
        }
    }
}
