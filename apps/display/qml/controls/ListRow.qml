import QtQuick 2.15
import CabSettings 1.0
import "."

// A row of a list: what it is, a second line below it, and what follows a tap.
//
//     ListRow { title: name; detail: sizeText; icon: "field"; chosen: isActive; onClicked: tree.choose(name) }
//     ListRow { title: qsTr("Units"); opens: true; onClicked: show("units") }
Item {
    id: row

    property string title
    property string detail
    property string icon
    // The one in force: in the accent colour.
    property bool chosen: false
    // Another page opens.
    property bool opens: false
    property color ink: chosen ? Scheme.accentGroundText : Scheme.text

    signal clicked()
    signal held()

    implicitWidth: 2 * Sizes.margin + heading.implicitWidth + (icon !== "" ? Sizes.icon + Sizes.margin : 0)
                   + (opens ? Sizes.icon + Sizes.margin : 0)
    implicitHeight: Math.max(Sizes.target, words.implicitHeight + 2 * Sizes.gap)
    activeFocusOnTab: true
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: detail
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Rectangle {
        anchors.fill: parent
        visible: row.chosen || tap.pressed
        radius: Sizes.radius
        color: row.chosen ? Scheme.accentGround : Scheme.line
    }
    Icon {
        id: picture

        anchors { left: parent.left; leftMargin: Sizes.margin; verticalCenter: parent.verticalCenter }
        visible: name !== ""
        name: row.icon
        color: row.ink
    }
    Column {
        id: words

        anchors {
            left: picture.visible ? picture.right : parent.left
            right: arrow.visible ? arrow.left : parent.right
            margins: Sizes.margin
            verticalCenter: parent.verticalCenter
        }

        TextLabel {
            id: heading

            width: parent.width
            text: row.title
            size: Sizes.row
            wraps: true
            color: row.ink
        }
        TextLabel {
            width: parent.width
            visible: text !== ""
            text: row.detail
            wraps: true
            color: row.chosen ? Scheme.accentGroundText : Scheme.muted
        }
    }
    Icon {
        id: arrow

        anchors { right: parent.right; rightMargin: Sizes.margin; verticalCenter: parent.verticalCenter }
        visible: row.opens
        name: "forward"
        color: row.chosen ? Scheme.accentGroundText : Scheme.muted
    }
    FocusRing { target: row }
    TapArea {
        id: tap

        enabled: row.enabled
        onClicked: row.clicked()
        onPressAndHold: row.held()
    }
}
