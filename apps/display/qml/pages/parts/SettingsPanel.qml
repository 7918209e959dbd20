import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// The frame of a page of settings: title, the way back, tools at the right of the title, and the content below.
//
//     SettingsPanel { title: qsTr("Units"); navigator: page; PagedList { anchors.fill: parent } }
Panel {
    id: panel

    property string title
    property bool hasBack: navigator ? !navigator.isWide : false
    property var navigator
    // A section offers to search in all settings.
    property bool hasSearch: false
    property alias tools: own.data
    property alias foot: foot.data
    default property alias content: content.data

    // In a slim window a title that has no room beside its tools stands above them.
    readonly property bool isStacked: Sizes.isSlim && own.width > 0 && heading.implicitWidth > head.width - heading.x - tools.width

    Item {
        id: head
        x: Sizes.isSlim ? Sizes.margin : Sizes.gap * 3
        width: parent.width - 2 * x
        height: (panel.isStacked ? 2 : 1) * (Sizes.target + Sizes.gap) + Sizes.gap

        IconButton {
            id: back
            width: Sizes.target
            y: Sizes.gap
            visible: panel.hasBack
            icon: "back"
            accessibleName: qsTr("Back")
            onClicked: panel.navigator.back()
        }

        TextLabel {
            id: heading
            objectName: "title"
            x: back.visible ? back.width + Sizes.gap * 2 : 0
            y: Sizes.gap + (Sizes.target - height) / 2
            width: parent.width - x - (panel.isStacked ? 0 : tools.width)
            size: Sizes.title
            font.bold: true
            wraps: true
            color: Scheme.title
            text: panel.title
        }

        Row {
            id: tools
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Sizes.gap
            spacing: Sizes.gap

            Row {
                id: own
                spacing: Sizes.gap
            }

            IconButton {
                visible: panel.hasSearch
                icon: "search"
                accessibleName: qsTr("Search")
                onClicked: panel.navigator.search()
            }
        }
    }

    Item {
        id: content
        anchors.top: head.bottom
        anchors.left: head.left
        anchors.right: head.right
        anchors.bottom: foot.top
        anchors.bottomMargin: Sizes.gap
    }

    Item {
        id: foot
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: childrenRect.height
    }
}
