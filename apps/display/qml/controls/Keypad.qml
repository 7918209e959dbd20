import QtQuick 2.15
import CabSettings 1.0
import "."

// Asks for a number. Shows the old value with its unit, says the range while the operator types, and what is wrong with
// what is typed; "Set" works only when it can be done. The keyboard types too, with either decimal sign.
//
//     Keypad {
//         id: keypad
//         title: qsTr("Implement width")
//         quantity: Quantity { kind: Quantity.Distance; value: Work.implementWidth }
//         least: Work.widthLeast
//         greatest: Work.widthGreatest
//         onAccepted: function(value) { Work.implementWidth = value }
//     }
//     PushButton { text: qsTr("Width"); onClicked: keypad.open() }
//
// With a parameter in place of a quantity, the parameter checks and stores what is typed:
//
//     Keypad { id: keypad; parameter: Parameter { name: "rates.…" } }
Overlay {
    id: keypad

    objectName: "keypad"
    firstStop: field

    property string title: parameter ? parameter.title : ""
    property QtObject quantity: null
    property QtObject parameter: null
    // In the stored unit of the quantity.
    property real least: -Infinity
    property real greatest: Infinity

    property string typed: ""
    // "" when what is typed can be set.
    readonly property string problem: typed === "" ? "" : problemOf(typed)
    readonly property bool isGood: typed !== "" && problem === ""
    readonly property string unit: quantity ? quantity.unit : parameter ? parameter.unit : ""
    readonly property string range: quantity ? rangeOf(quantity.unit)
                                    : parameter && parameter.hasRange ? parameter.accepts : ""
    // As the display writes it; "" where a number has no decimals.
    readonly property string decimalSign: quantity ? quantity.decimalSign : ""
    readonly property bool hasSign: quantity ? least < 0 : parameter !== null && parameter.least < 0
    // A number that is longer is a slip of the finger.
    readonly property int lengthGreatest: 12

    // The value, in the stored unit. With a parameter it is stored already.
    signal accepted(real value)

    function rangeOf(unit) {
        const hasLeast = isFinite(least)
        const hasGreatest = isFinite(greatest)
        if (hasLeast && hasGreatest)
            return qsTr("%1 to %2 %3").arg(quantity.format(least)).arg(quantity.format(greatest)).arg(unit)
        if (hasLeast)
            return qsTr("At least %1 %2").arg(quantity.format(least)).arg(unit)
        return hasGreatest ? qsTr("At most %1 %2").arg(quantity.format(greatest)).arg(unit) : ""
    }
    // The ends of the range as they are shown: the operator may type exactly those.
    function shownEnd(end) { return isFinite(end) ? quantity.parse(quantity.format(end)) : end }
    function problemOf(text) {
        if (!quantity)
            return parameter ? parameter.check(text) : ""
        const value = quantity.parse(text)
        if (isNaN(value))
            return qsTr("This is not a number yet.")
        if (value > Math.max(greatest, shownEnd(greatest)))
            return qsTr("Too large.\n%1").arg(range)
        if (value < Math.min(least, shownEnd(least)))
            return qsTr("Too small.\n%1").arg(range)
        return ""
    }
    function type(sign) {
        if (typed.length >= lengthGreatest)
            return
        if (sign === decimalSign && typed.indexOf(sign) >= 0)
            return
        typed += sign
    }
    function changeSign() { typed = typed.charAt(0) === "-" ? typed.slice(1) : "-" + typed }
    function back() { typed = typed.slice(0, -1) }
    function clear() { typed = "" }
    function accept() {
        if (!isGood)
            return
        const text = typed
        if (quantity) {
            accepted(Math.max(least, Math.min(greatest, quantity.parse(text))))
        } else if (parameter) {
            if (!parameter.set(text))
                return
            accepted(Number(text))
        }
        close()
    }

    onOpened: clear()
    Keys.onReturnPressed: accept()
    Keys.onEnterPressed: accept()
    Keys.onPressed: function(event) {
        event.accepted = true
        if (event.text >= "0" && event.text <= "9" && event.text.length === 1)
            type(event.text)
        else if ((event.text === "." || event.text === ",") && decimalSign !== "")
            type(decimalSign)
        else if (event.text === "-" && hasSign)
            changeSign()
        else if (event.key === Qt.Key_Backspace)
            back()
        else if (event.key === Qt.Key_Delete)
            clear()
        else
            event.accepted = false
    }

    Grid {
        id: halves

        readonly property bool isStacked: Sizes.isPortrait
        readonly property real keysWidth: 4 * Sizes.key + 3 * Sizes.gap
        readonly property real keysHeight: keysWidth

        columns: isStacked ? 1 : 2
        spacing: 3 * Sizes.gap

        Item {
            width: halves.isStacked ? halves.keysWidth : Math.round(374 * Sizes.scale)
            height: halves.isStacked ? top.height + 3 * Sizes.gap + buttons.height : halves.keysHeight

            Column {
                id: top

                width: parent.width
                spacing: Sizes.gap

                TextLabel {
                    objectName: "title"
                    width: parent.width
                    text: keypad.title
                    size: Sizes.title
                    font.bold: true
                    color: Scheme.accent
                }
                TextLabel {
                    objectName: "old"
                    width: parent.width
                    text: qsTr("now %1").arg(keypad.quantity ? keypad.quantity.text
                                             : keypad.parameter ? keypad.parameter.shownText : "")
                    muted: true
                }
                Rectangle {
                    id: field

                    width: parent.width
                    height: Sizes.key
                    radius: Sizes.radius
                    color: Scheme.button
                    border { width: 2 * Sizes.line; color: keypad.problem !== "" ? Scheme.attention : Scheme.accent }
                    // Here Enter sets what is typed.
                    activeFocusOnTab: true
                    Accessible.role: Accessible.EditableText
                    Accessible.name: keypad.title

                    FocusRing {}

                    TextLabel {
                        objectName: "entry"
                        anchors {
                            left: parent.left
                            right: unitLabel.left
                            margins: 2 * Sizes.gap
                            verticalCenter: parent.verticalCenter
                        }
                        text: keypad.typed
                        size: Math.round(Sizes.key * 0.62)
                        font.bold: true
                        color: Scheme.buttonText
                        horizontalAlignment: Text.AlignRight
                    }
                    TextLabel {
                        id: unitLabel

                        objectName: "unit"
                        anchors { right: parent.right; rightMargin: 2 * Sizes.gap; verticalCenter: parent.verticalCenter }
                        text: keypad.unit
                        size: Sizes.row
                        color: Scheme.buttonText
                    }
                }
                TextLabel {
                    objectName: "sentence"
                    width: parent.width
                    // The room of two lines, so that nothing moves while the operator types.
                    height: Math.max(implicitHeight, 2.5 * Sizes.text)
                    text: keypad.problem !== "" ? keypad.problem : keypad.range
                    color: keypad.problem !== "" ? Scheme.attention : Scheme.muted
                    wraps: true
                }
            }
            Row {
                id: buttons

                anchors.bottom: parent.bottom
                spacing: Sizes.gap

                PushButton {
                    objectName: "cancel"
                    width: (top.width - Sizes.gap) / 2
                    height: Sizes.key
                    text: qsTr("Cancel")
                    onClicked: keypad.close()
                }
                PushButton {
                    objectName: "set"
                    width: (top.width - Sizes.gap) / 2
                    height: Sizes.key
                    text: qsTr("Set")
                    primary: enabled
                    enabled: keypad.isGood
                    onClicked: keypad.accept()
                }
            }
        }
        Row {
            spacing: Sizes.gap

            Grid {
                columns: 3
                spacing: Sizes.gap

                Repeater {
                    model: ["7", "8", "9", "4", "5", "6", "1", "2", "3"]

                    KeypadKey {
                        objectName: "key" + modelData
                        text: modelData
                        onClicked: keypad.type(modelData)
                    }
                }
                KeypadKey {
                    objectName: "keyDecimal"
                    text: keypad.decimalSign
                    accessibleName: qsTr("Decimal sign")
                    enabled: text !== ""
                    onClicked: keypad.type(text)
                }
                KeypadKey {
                    objectName: "key0"
                    text: "0"
                    onClicked: keypad.type(text)
                }
                KeypadKey {
                    objectName: "keySign"
                    text: "±"
                    accessibleName: qsTr("Plus or minus")
                    enabled: keypad.hasSign
                    onClicked: keypad.changeSign()
                }
            }
            Column {
                spacing: Sizes.gap

                KeypadKey {
                    objectName: "keyBack"
                    height: 2 * Sizes.key + Sizes.gap
                    icon: "backspace"
                    accessibleName: qsTr("Remove the last sign")
                    enabled: keypad.typed !== ""
                    onClicked: keypad.back()
                }
                KeypadKey {
                    objectName: "keyClear"
                    height: 2 * Sizes.key + Sizes.gap
                    text: qsTr("C", "key that clears the entry")
                    accessibleName: qsTr("Clear")
                    enabled: keypad.typed !== ""
                    onClicked: keypad.clear()
                }
            }
        }
    }
}
