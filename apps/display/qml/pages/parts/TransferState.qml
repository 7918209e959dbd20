import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// How far a transfer is, or how it has ended, in one sentence.
//
//     TransferState { width: 900; transfer: itsTransfer }
Item {
    id: state

    property var transfer
    // From the stick, rather than to it.
    property bool isReading: false

    readonly property bool isRunning: transfer.state === Transfer.Running

    visible: transfer.state !== Transfer.Idle
    implicitHeight: isRunning ? gauge.height : words.height

    Gauge {
        id: gauge
        objectName: "transferRunning"
        width: parent.width
        visible: state.isRunning
        title: state.isReading ? qsTr("Reading") : qsTr("Writing")
        text: qsTr("Leave the stick where it is until this is done.")
        fraction: state.transfer.progress
    }

    TextLabel {
        id: words
        objectName: "transferEnd"
        width: parent.width
        visible: !state.isRunning
        size: Sizes.row
        font.bold: true
        wraps: true
        color: state.transfer.state === Transfer.Failed ? Scheme.attention : Scheme.good
        text: state.transfer.state === Transfer.Failed ? state.transfer.error : state.transfer.result
    }
}
