import QtQuick 2.15
import CabSettings 1.0
import "."

// A text that the operator types, by the platform's input method or a keyboard. What is wrong with it is said below.
//
//     TextEntry { id: entry; label: qsTr("Name"); error: tree.checkName(text); onAccepted: tree.add(text) }
//     PushButton { text: qsTr("Add"); enabled: entry.isGood; onClicked: tree.add(entry.text) }
FocusScope {
    id: entry

    property string label
    property string placeholder
    property string icon
    // A sentence; "" says that the text is accepted.
    property string error
    property alias text: input.text
    property alias hints: input.inputMethodHints
    property alias length: input.maximumLength
    readonly property bool isGood: error === "" && text !== ""

    // Enter was pressed, and the text is accepted.
    signal accepted()

    function clear() { input.clear() }
    function selectAll() { input.selectAll() }

    implicitWidth: 12 * Sizes.row
    implicitHeight: column.implicitHeight

    Column {
        id: column

        width: parent.width
        spacing: Sizes.gap / 2

        TextLabel {
            visible: text !== ""
            text: entry.label
            muted: true
        }
        Rectangle {
            width: parent.width
            height: Sizes.target
            radius: Sizes.radius
            color: Scheme.button
            border {
                width: input.activeFocus ? 3 * Sizes.line : Sizes.line
                color: entry.error !== "" && entry.text !== "" ? Scheme.attention
                       : input.activeFocus ? Scheme.focus : Scheme.line
            }

            Icon {
                id: picture

                anchors { left: parent.left; leftMargin: Sizes.margin; verticalCenter: parent.verticalCenter }
                visible: name !== ""
                name: entry.icon
                color: Scheme.buttonText
            }
            TextLabel {
                anchors.fill: input
                visible: input.text === "" && input.preeditText === ""
                text: entry.placeholder
                color: Scheme.buttonText
                verticalAlignment: Text.AlignVCenter
            }
            TextInput {
                id: input

                anchors {
                    fill: parent
                    leftMargin: Sizes.margin + (picture.visible ? picture.width + Sizes.margin : 0)
                    rightMargin: Sizes.margin
                }
                focus: true
                activeFocusOnTab: true
                clip: true
                verticalAlignment: TextInput.AlignVCenter
                font.pixelSize: Sizes.row
                color: Scheme.buttonText
                selectionColor: Scheme.accent
                selectedTextColor: Scheme.accentText
                inputMethodHints: Qt.ImhNoPredictiveText
                Accessible.role: Accessible.EditableText
                Accessible.name: entry.label !== "" ? entry.label : entry.placeholder
                // Also where a page or a question gives it the focus: the tap was on what opened that.
                onActiveFocusChanged: {
                    if (activeFocus)
                        Qt.inputMethod.show()
                }
                onAccepted: {
                    if (entry.isGood)
                        entry.accepted()
                }
            }
            // The input method must open also where the text already has the focus.
            TapArea {
                onClicked: function(mouse) {
                    input.forceActiveFocus()
                    input.cursorPosition = input.positionAt(mouse.x - input.x, mouse.y - input.y)
                    Qt.inputMethod.show()
                }
            }
        }
        TextLabel {
            width: parent.width
            visible: text !== ""
            text: entry.text !== "" ? entry.error : ""
            color: Scheme.attention
            wraps: true
        }
    }
}
