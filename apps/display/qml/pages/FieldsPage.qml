import QtQuick 2.15
import CabSettings 1.0
import "../controls"
import "parts"

// The clients, farms, fields and jobs: one level at a time, with the way back above it. A tap opens an item, or chooses
// the job; the button at its right renames or removes it.
//
//     FieldsPage { anchors.fill: parent }
Item {
    id: page

    // The words of each level.
    readonly property var words: ({
        client: { title: qsTr("Clients"), add: qsTr("New client"), none: qsTr("No client yet.") },
        farm: { title: qsTr("Farms"), add: qsTr("New farm"), none: qsTr("No farm yet.") },
        field: { title: qsTr("Fields"), add: qsTr("New field"), none: qsTr("No field yet.") },
        job: { title: qsTr("Jobs"), add: qsTr("New job"), none: qsTr("No job yet.") }
    })
    readonly property var level: words[tree.level]

    function open(name) {
        if (tree.level === "job")
            tree.choose(name)
        else
            tree.path = tree.path.concat([name])
    }

    FieldTree {
        id: tree

        // What a refusal is about.
        property string removing

        onDone: function (ok, error) {
            if (!ok && refused)
                force.ask(qsTr("Remove %1 with everything in it?").arg(removing), error)
            problem.text = ok || refused ? "" : error
        }
    }

    SettingsPanel {
        anchors.fill: parent
        anchors.margins: Sizes.margin
        title: tree.path.length > 0 ? tree.path.join(" · ") : page.level.title
        hasBack: tree.path.length > 0
        navigator: page

        tools: PushButton {
            objectName: "add"
            icon: "plus"
            text: page.level.add
            enabled: !tree.busy
            onClicked: naming.ask("")
        }

        Message {
            id: problem
            visible: text !== ""
            action: qsTr("OK")
            onClicked: text = ""
        }

        PagedList {
            anchors.top: problem.visible ? problem.bottom : parent.top
            anchors.bottom: parent.bottom
            width: parent.width
            focus: true
            model: tree
            spacing: Sizes.gap
            delegate: Item {
                width: ListView.view.width
                height: row.implicitHeight

                ListRow {
                    id: row
                    anchors.left: parent.left
                    anchors.right: more.left
                    anchors.rightMargin: Sizes.gap
                    title: model.name
                    detail: model.sizeText
                    icon: tree.level === "job" ? "job" : tree.level === "field" ? "field" : "folder"
                    chosen: model.isActive
                    opens: tree.level !== "job"
                    onClicked: page.open(model.name)
                }

                IconButton {
                    id: more

                    objectName: "change"
                    anchors.right: parent.right
                    height: row.height
                    icon: "pencil"
                    accessibleName: qsTr("Rename or remove %1").arg(model.name)
                    onClicked: changing.ask(model.name)
                }
            }
        }

        TextLabel {
            visible: tree.count === 0 && !tree.busy
            muted: true
            text: page.level.none
        }
    }

    function back() {
        tree.path = tree.path.slice(0, -1)
    }

    Keys.onEscapePressed: function (event) {
        event.accepted = tree.path.length > 0
        if (event.accepted)
            back()
    }

    NameEntry {
        id: naming
        title: page.level.add
        check: function (text) { return tree.checkName(text) }
        onTyped: function (text) { tree.add(text) }
    }

    NameEntry {
        id: renaming
        title: qsTr("Rename %1").arg(changing.name)
        check: function (text) { return text === changing.name ? "" : tree.checkName(text) }
        onTyped: function (text) {
            if (text !== changing.name)
                tree.rename(changing.name, text)
        }
    }

    Question {
        id: force
        action: qsTr("Remove everything")
        onAgreed: tree.remove(tree.removing, true)
    }

    ItemActions {
        id: changing
        onRename: renaming.ask(name)
        onRemove: {
            tree.removing = name
            tree.remove(name, false)
        }
    }
}
