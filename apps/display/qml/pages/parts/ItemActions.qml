import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// Asks what to do with an item that has a name.
//
//     ItemActions { id: actions; onRename: naming.ask(name); onRemove: tree.remove(name, false) }
//     …
//     actions.ask("F1")
Overlay {
    id: actions

    objectName: "itemActions"

    property string name

    signal rename()
    signal remove()

    function ask(itsName) {
        name = itsName
        open()
    }

    Column {
        width: Math.min(actions.roomWidth, Sizes.row * 14)
        spacing: Sizes.gap * 2

        TextLabel {
            width: parent.width
            size: Sizes.title
            font.bold: true
            wraps: true
            color: Scheme.title
            text: actions.name
        }

        PushButton {
            width: parent.width
            focus: true
            icon: "pencil"
            text: qsTr("Rename")
            onClicked: {
                actions.close()
                actions.rename()
            }
        }

        PushButton {
            objectName: "remove"
            width: parent.width
            icon: "trash"
            text: qsTr("Remove")
            onClicked: {
                actions.close()
                actions.remove()
            }
        }

        PushButton {
            width: parent.width
            text: qsTr("Cancel")
            onClicked: actions.close()
        }
    }
}
