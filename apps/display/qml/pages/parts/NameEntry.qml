import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// Asks for a text. What is wrong with it is said while it is typed.
//
//     NameEntry { id: naming; title: qsTr("New field"); check: function (text) { return tree.checkName(text) }
//                 onTyped: function (text) { tree.add(text) } }
//     …
//     naming.ask("")
Overlay {
    id: naming

    objectName: "nameEntry"

    property string title
    property string hint
    // From the text to a sentence that says what is wrong; "" when nothing is.
    property var check: function () { return "" }
    property bool takesNothing: false
    property alias hints: entry.hints

    // The keyboard on the screen leaves no room for buttons below.
    readonly property bool isLow: roomHeight < 5 * Sizes.target
    readonly property bool isGood: entry.error === "" && (takesNothing || entry.text !== "")

    signal typed(string text)

    function ask(text) {
        entry.text = text
        open()
        entry.forceActiveFocus()
        entry.selectAll()
    }

    function take() {
        if (!isGood)
            return
        close()
        typed(entry.text)
    }

    Column {
        width: Math.min(naming.roomWidth, Sizes.row * (naming.isLow ? 32 : 24))
        spacing: Sizes.gap * (naming.isLow ? 1 : 2)

        Item {
            id: head
            width: parent.width
            height: childrenRect.height

            TextLabel {
                width: parent.width - (naming.isLow ? buttons.width + Sizes.gap : 0)
                height: naming.isLow ? Math.max(implicitHeight, buttons.height) : implicitHeight
                verticalAlignment: Text.AlignVCenter
                size: Sizes.title
                font.bold: true
                wraps: true
                color: Scheme.title
                text: naming.title
            }
        }

        TextEntry {
            id: entry
            width: parent.width
            focus: true
            placeholder: naming.title
            error: naming.check(text)
            onAccepted: naming.take()
        }

        TextLabel {
            width: parent.width
            visible: text !== "" && entry.error === ""
            muted: true
            wraps: true
            text: naming.hint
        }

        Item {
            id: foot
            width: parent.width
            height: childrenRect.height
            visible: !naming.isLow
        }
    }

    Row {
        id: buttons
        parent: naming.isLow ? head : foot
        anchors.right: parent ? parent.right : undefined
        spacing: Sizes.gap * 2

        PushButton {
            text: qsTr("Cancel")
            onClicked: naming.close()
        }

        PushButton {
            text: qsTr("Set")
            primary: true
            enabled: naming.isGood
            onClicked: naming.take()
        }
    }
}
