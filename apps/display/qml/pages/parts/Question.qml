import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// A question that must be answered before anything else: Cancel, or the button that does it.
//
//     Question { id: question; action: qsTr("Remove"); onAgreed: tree.remove(name, true) }
//     …
//     question.ask(qsTr("Remove %1 with everything in it?").arg(name), qsTr("7 files"))
Overlay {
    id: question

    objectName: "question"

    property string action
    property alias text: words.text
    // What the operator should know before the answer.
    property alias detail: fact.text

    signal agreed()

    function ask(sentence, itsDetail) {
        text = sentence
        detail = itsDetail
        open()
    }

    Column {
        width: Math.min(question.roomWidth, Sizes.row * 22)
        spacing: Sizes.gap * 3

        TextLabel {
            id: words
            width: parent.width
            size: Sizes.row
            wraps: true
        }

        TextLabel {
            id: fact
            width: parent.width
            visible: text !== ""
            muted: true
            wraps: true
        }

        // Below each other where they are too wide together.
        Grid {
            anchors.right: parent.right
            columns: cancel.width + agree.width + spacing <= parent.width ? 2 : 1
            horizontalItemAlignment: Grid.AlignRight
            spacing: Sizes.gap * 2

            PushButton {
                id: cancel
                focus: true
                text: qsTr("Cancel")
                onClicked: question.close()
            }

            PushButton {
                id: agree
                text: question.action
                primary: true
                onClicked: {
                    question.close()
                    question.agreed()
                }
            }
        }
    }
}
