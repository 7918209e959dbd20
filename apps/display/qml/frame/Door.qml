import QtQuick 2.15
import CabSettings 1.0
import "../controls"

// The door to a page. In a narrow window the icon stands above the word; in a low one the word stands alone.
Item {
    id: door

    property string title
    property string icon
    property bool isOpen: false

    readonly property color ink: isOpen ? Scheme.accentGroundText : Scheme.text

    signal clicked()

    activeFocusOnTab: true
    Accessible.role: Accessible.PageTab
    Accessible.name: title
    Accessible.selected: isOpen
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    Rectangle {
        anchors.fill: parent
        visible: door.isOpen || tap.pressed
        radius: Sizes.radius
        color: door.isOpen ? Scheme.accentGround : Scheme.button
    }
    Grid {
        anchors.centerIn: parent
        columns: Sizes.isNarrow ? 1 : 2
        columnSpacing: Sizes.margin + Sizes.gap / 2
        horizontalItemAlignment: Grid.AlignHCenter
        verticalItemAlignment: Grid.AlignVCenter

        Icon {
            visible: !Sizes.isCompact || !Sizes.isNarrow || Sizes.isSlim
            name: door.icon
            color: door.ink
        }
        TextLabel {
            text: door.title
            size: Sizes.isNarrow ? Sizes.text : Sizes.row
            width: Math.min(implicitWidth, door.width - (Sizes.isNarrow ? 0 : Sizes.icon + 2 * Sizes.margin))
            color: door.ink
        }
    }
    FocusRing { target: door }
    TapArea {
        id: tap

        onClicked: door.clicked()
    }
}
