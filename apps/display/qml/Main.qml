import QtQuick 2.15
import QtQuick.Window 2.15
import CabSettings 1.0

// The window of the display.
Window {
    id: window

    property string page: "work"
    property string section: ""
    // What the program returns when it must start again.
    readonly property int restartStatus: 64

    width: 1280
    height: 800
    minimumWidth: 480
    minimumHeight: 480
    visible: true
    title: qsTr("Cab display")

    Display {
        anchors.fill: parent
        page: window.page
        section: window.section
    }
    Connections {
        target: Restart
        function onRequested() { Qt.exit(window.restartStatus) }
    }
}
