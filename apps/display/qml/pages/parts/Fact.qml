import QtQuick 2.15
import "../../controls"

// One value of Facts, below its title.
//
//     Fact { title: qsTr("Fix"); text: Receiver.fixText; isMain: true }
Column {
    id: fact

    property string title
    property string text
    property bool isMain: false

    width: parent.cellWidth

    TextLabel {
        width: parent.width
        muted: true
        wraps: true
        text: fact.title
    }

    TextLabel {
        width: parent.width
        size: fact.isMain ? Sizes.title : Sizes.row
        font.bold: true
        wraps: true
        text: fact.text !== "" ? fact.text : "----"
    }
}
