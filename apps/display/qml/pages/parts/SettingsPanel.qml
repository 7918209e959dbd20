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

    Item {
        id: head
        x: Sizes.gap * 3
        width: parent.width - 2 * x
        height: Sizes.target + 2 * Sizes.gap

        IconButton {
            id: back
            width: Sizes.target
            anchors.verticalCenter: parent.verticalCenter
            visible: panel.hasBack
            icon: "back"
            accessibleName: qsTr("Back")
            onClicked: panel.navigator.back()
        }

        TextLabel {
            anchors.left: back.visible ? back.right : parent.left
            anchors.leftMargin: back.visible ? Sizes.gap * 2 : 0
            anchors.right: tools.left
            anchors.verticalCenter: parent.verticalCenter
            size: Sizes.title
            font.bold: true
            wraps: true
            color: Scheme.title
            text: panel.title
        }

        Row {
            id: tools
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
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
