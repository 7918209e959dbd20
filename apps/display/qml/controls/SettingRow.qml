import QtQuick 2.15
import CabSettings 1.0
import "."

// A setting: its name, what it does, and its control at the right. In a narrow page the control stands below the words.
//
//     SettingRow {
//         title: parameter.title; meaning: parameter.meaning
//         Segments { room: parent.room; choices: parameter.choices; value: parameter.value }
//     }
//
// The control finds the width that there is for it in parent.room, and in parent.isStacked whether it stands below.
Item {
    id: row

    property string title
    property string meaning
    // A sentence in the colour of attention below the meaning: why the last value was refused.
    property string error
    property bool hasLine: true
    // The height that there is; 0 is any. A row that would be higher leaves out the meaning.
    property real most: 0
    default property alias control: place.data

    readonly property bool isStacked: place.childrenRect.width > 0 && width - place.childrenRect.width < 14 * Sizes.row
    readonly property real wordsWidth: isStacked ? width : width - place.childrenRect.width - 2 * Sizes.margin

    readonly property bool hasRoomForMeaning: most === 0 || !isStacked
        || 3 * Sizes.gap + name.height + purpose.height + (reason.visible ? reason.height : 0) + place.height <= most

    implicitWidth: 20 * Sizes.row
    implicitHeight: 2 * Sizes.gap + (isStacked ? words.height + Sizes.gap + place.height
                                               : Math.max(Sizes.target, words.height, place.height))

    Column {
        id: words

        y: row.isStacked ? Sizes.gap : (row.height - height) / 2
        width: row.wordsWidth

        TextLabel {
            id: name
            objectName: "name"
            width: parent.width
            text: row.title
            size: Sizes.row
            wraps: true
        }
        TextLabel {
            id: purpose
            width: parent.width
            visible: text !== "" && row.hasRoomForMeaning
            text: row.meaning
            muted: true
            wraps: true
        }
        TextLabel {
            id: reason
            width: parent.width
            visible: text !== ""
            text: row.error
            color: Scheme.attention
            wraps: true
        }
    }
    Item {
        id: place

        readonly property real room: row.width
        readonly property bool isStacked: row.isStacked

        x: row.isStacked ? 0 : row.width - width
        y: row.isStacked ? row.height - height - Sizes.gap : (row.height - height) / 2
        width: childrenRect.width
        height: childrenRect.height
    }
    Rectangle {
        anchors.bottom: parent.bottom
        visible: row.hasLine
        width: parent.width
        height: Sizes.line
        color: Scheme.line
    }
}
