import QtQuick 2.15
import QtQuick.Window 2.15
import CabSettings 1.0

Window {
    width: 480; height: 320; visible: true
    color: Scheme.background

    component Button: Rectangle {
        property alias text: label.text
        signal pressed
        width: 400; height: 76; radius: 10
        color: Scheme.button
        Text { id: label; anchors.centerIn: parent; color: Scheme.buttonText; font.pixelSize: 24 }
        TapHandler { onTapped: parent.pressed() }
    }

    Component.onCompleted: Receiver.running = true // at first on the simulator
    Parameter { id: metric; name: "units.metric" }
    Quantity { id: speed; objectName: "speed"; kind: Quantity.Speed; value: Receiver.speed }

    Column {
        anchors.centerIn: parent
        spacing: 16
        Text { text: Clock.time + "  " + Receiver.fixText; color: Scheme.muted; font.pixelSize: 24 }
        Text { text: speed.text; color: Scheme.text; font.pixelSize: 64 }
        Button { text: metric.title + ": " + metric.shownText; onPressed: metric.value = !metric.value }
        Button { text: Scheme.isDay ? "Night" : "Day"; onPressed: Scheme.toggle() }
    }
}
