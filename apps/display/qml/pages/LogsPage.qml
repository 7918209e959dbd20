import QtQuick 2.15
import CabSettings 1.0
import "../controls"
import "parts"

// The newest lines of the logs as they are written. A pause keeps them still. The page of storage takes the logs to the
// stick.
//
//     LogsPage { anchors.fill: parent }
Item {
    id: page

    property bool isUserLog: true

    Log {
        id: log
        kind: page.isUserLog ? Log.User : Log.Nmea
    }

    SettingsPanel {
        anchors.fill: parent
        anchors.margins: Sizes.margin
        title: qsTr("Logs")

        tools: [
            Segments {
                choices: [{ value: true, text: qsTr("Events") }, { value: false, text: qsTr("Receiver") }]
                value: page.isUserLog
                onChosen: function (chosen) { page.isUserLog = chosen }
            },
            IconButton {
                icon: log.paused ? "play" : "pause"
                accessibleName: log.paused ? qsTr("Go on") : qsTr("Pause")
                primary: log.paused
                onClicked: log.paused = !log.paused
            }
        ]

        TextLabel {
            visible: log.count === 0
            muted: true
            text: qsTr("No line yet.")
        }

        ListView {
            id: lines

            objectName: "lines"

            // Follows the newest line unless the operator has paged up.
            property bool follows: true
            readonly property real wholePage: height - Sizes.row
            // How far a key scrolls.
            readonly property var steps: ({
                [Qt.Key_Up]: -2 * Sizes.row, [Qt.Key_Down]: 2 * Sizes.row,
                [Qt.Key_PageUp]: -wholePage, [Qt.Key_PageDown]: wholePage,
                [Qt.Key_Home]: -Infinity, [Qt.Key_End]: Infinity
            })

            function scroll(by) {
                const end = originY + Math.max(0, contentHeight - height)
                contentY = Math.max(originY, Math.min(end, contentY + by))
                follows = atYEnd
            }

            anchors.left: parent.left
            anchors.right: turner.left
            anchors.rightMargin: Sizes.gap * 2
            height: parent.height
            clip: true
            focus: true
            activeFocusOnTab: true
            // A current row would take the focus from the list.
            keyNavigationEnabled: false
            currentIndex: -1
            boundsBehavior: Flickable.StopAtBounds
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Logs")
            Keys.onPressed: function (event) {
                const by = lines.steps[event.key]
                event.accepted = by !== undefined && (by < 0 ? !atYBeginning : !atYEnd)
                if (event.accepted)
                    lines.scroll(by)
            }
            model: log
            delegate: TextLabel {
                width: ListView.view.width
                bottomPadding: Sizes.gap
                wraps: true
                text: model.line
            }
            onCountChanged: {
                if (follows)
                    Qt.callLater(lines.positionViewAtEnd)
            }
            onMovementEnded: follows = atYEnd
        }

        // Hides the line that is not whole.
        Rectangle {
            readonly property Item first: lines.itemAt(0, lines.contentY + 1)

            anchors.left: lines.left
            anchors.right: lines.right
            height: first && first.y < lines.contentY ? first.y + first.height - lines.contentY : 0
            color: Scheme.panel
        }

        FocusRing {
            anchors.fill: lines
            target: lines
        }

        PageTurner {
            id: turner
            anchors.right: parent.right
            hasUp: !lines.atYBeginning
            hasDown: !lines.atYEnd
            onUp: lines.scroll(-lines.wholePage)
            onDown: lines.scroll(lines.wholePage)
        }
    }
}
