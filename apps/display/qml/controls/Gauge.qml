import QtQuick 2.15
import CabSettings 1.0
import "."

// How full something is: its name, a bar, and the text that says it.
//
//     Gauge { title: qsTr("Internal drive"); text: Drives.internalText; fraction: used; needsAttention: fraction > 0.9 }
Item {
    id: gauge

    property string title
    property string text
    // 0 to 1.
    property real fraction: 0
    property bool needsAttention: false

    implicitWidth: 12 * Sizes.row
    implicitHeight: words.implicitHeight + Sizes.gap + bar.height
    Accessible.role: Accessible.ProgressBar
    Accessible.name: title + ", " + text

    Flow {
        id: words

        width: parent.width
        spacing: Sizes.margin

        TextLabel { text: gauge.title; size: Sizes.row }
        TextLabel {
            width: Math.min(implicitWidth, parent.width)
            size: Sizes.row // that of the title: both stand on one base line
            muted: true
            wraps: true
            text: gauge.text
        }
    }
    Rectangle {
        id: bar

        anchors.bottom: parent.bottom
        width: parent.width
        height: 2 * Sizes.gap
        radius: height / 2
        color: Scheme.button

        Rectangle {
            width: Math.max(height, parent.width * Math.max(0, Math.min(1, gauge.fraction)))
            height: parent.height
            radius: height / 2
            visible: gauge.fraction > 0
            color: gauge.needsAttention ? Scheme.attention : Scheme.good
        }
    }
}
