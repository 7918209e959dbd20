import QtQuick 2.15
import CabSettings 1.0
import CabDisplay 1.0
import "controls"
import "frame"
import "pages"

// Everything that the window shows: the state above, what needs attention, the page, the doors to the pages below.
//
//     Display { anchors.fill: parent; page: "settings"; section: "units" }
FocusKeys {
    id: display

    objectName: "display"

    // "work", "fields", "receiver", "logs" or "settings".
    property string page: "work"
    // A page of the settings; "" is their first one.
    property string section: ""

    function open(name, part) {
        section = part === undefined ? "" : part
        page = name
        passSection()
    }
    // Also again, when the operator has gone on from it within the settings.
    function passSection() {
        if (page === "settings" && other.item !== null)
            other.item.section = section
    }

    onSectionChanged: passSection()

    focus: true
    Keys.onEscapePressed: open("work")

    Binding { target: Sizes; property: "width"; value: display.width }
    Binding { target: Sizes; property: "height"; value: display.height }
    Binding { target: Sizes; property: "overlay"; value: overlay }
    Binding { target: Sizes; property: "byKeys"; value: display.byKeys }
    // Delayed: a field that moves asks the input method anew, which is just about to show the keyboard.
    Binding { target: Sizes; property: "keyboard"; value: keyboard.covered; delayed: true }

    Ground {
        anchors.fill: parent
        // The map covers it.
        visible: display.page !== "work"
    }
    FocusScope {
        anchors.fill: parent
        enabled: overlay.count === 0
        focus: true

        Item {
            id: middle

            anchors { left: parent.left; right: parent.right; top: messages.bottom; bottom: doors.top }

            // Always there: the map is what the operator comes back to.
            WorkPage {
                anchors.fill: parent
                visible: display.page === "work"
                onOpenSettings: function(section) { display.open("settings", section) }
            }
            Loader {
                id: other

                anchors {
                    fill: parent
                    // A page stays as it is below a question.
                    bottomMargin: overlay.count === 0 ? Math.max(0, Sizes.keyboard - doors.height) : 0
                }
                active: display.page !== "work"
                source: active ? "pages/" + doors.row(display.page).file : ""

                onLoaded: display.passSection()

                Connections {
                    target: other.item
                    ignoreUnknownSignals: true
                    function onOpenSettings(section) { display.open("settings", section) }
                }
            }
        }
        StateBand {
            id: state

            objectName: "stateBand"
            width: parent.width
            onLock: locked.open()
        }
        Column {
            id: messages

            anchors.top: state.bottom
            width: parent.width

            Repeater {
                model: Problems

                Message {
                    objectName: "problem"
                    // The page keeps room for its buttons.
                    visible: index < (Sizes.isCompact ? 1 : 2)
                    text: model.text
                }
            }
            Message {
                objectName: "restart"
                visible: Restart.needed
                text: Restart.reason
                action: qsTr("Restart")
                onClicked: Restart.request()
            }
        }
        DoorBand {
            id: doors

            anchors.bottom: parent.bottom
            width: parent.width
            page: display.page
            onOpen: function(name) { display.open(name) }
        }
    }
    Item {
        id: overlay

        // Of the questions that are open.
        property int count: 0

        anchors.fill: parent
    }
    LockLayer { id: locked }
    Loader {
        id: keyboard

        readonly property real covered: item !== null && item.active ? item.height : 0
        // Not a source, which would complain where one of the keyboard's modules is missing.
        readonly property Component panel: ScreenKeyboard.isChosen
            ? Qt.createComponent("keyboard/KeyboardPanel.qml", Component.Asynchronous) : null

        sourceComponent: panel !== null && panel.status === Component.Ready ? panel : null
    }
}
