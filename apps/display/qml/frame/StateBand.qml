import QtQuick 2.15
import CabSettings 1.0
import "../controls"

// The band above the page: where and what the operator works, how good the position is, the clock, and one tap each to
// lock the screen and to change between day and night. In a slim window where and what share the upper one of two lines.
Rectangle {
    id: band

    signal lock()

    readonly property color fixColor: Receiver.state === "receiving" && Receiver.quality >= 4 ? Scheme.good
                                      : Scheme.attention
    // How the place is written where the whole of it has no room: the parts from the end.
    readonly property var parts: [Selections.client, Selections.farm, Selections.field].filter(part => part !== "")
    readonly property real placeRoom: Sizes.isSlim ? where.width - job.width - Sizes.gap : where.width
    readonly property real buttonHeight: height - 2 * Sizes.line - Sizes.gap
    readonly property string place: fitting(parts, placeRoom)

    function fitting(names, room) {
        for (let i = 0; i < names.length; ++i) {
            const text = names.slice(i).join(" · ")
            if (metrics.advanceWidth(text) <= room)
                return text
        }
        return names.length > 0 ? names[names.length - 1] : ""
    }
    height: Sizes.stateBand
    color: Scheme.background

    FontMetrics {
        id: metrics

        font.pixelSize: Sizes.text
    }
    FontMetrics {
        id: boldMetrics

        font { bold: true; pixelSize: Sizes.text + 2 }
    }
    Grid {
        id: where

        x: Sizes.margin + Sizes.gap / 2
        y: Sizes.isSlim ? Sizes.gap : (band.height - height) / 2
        width: (Sizes.isSlim ? buttons.x : states.x) - x - Sizes.margin
        columns: Sizes.isSlim ? 2 : 1
        columnSpacing: Sizes.gap
        verticalItemAlignment: Grid.AlignVCenter

        // Names have no greatest width: the end of one that fills the band alone is cut off.
        TextLabel {
            width: Sizes.isSlim ? Math.ceil(metrics.advanceWidth(text)) : parent.width
            visible: text !== "" && (!Sizes.isSlim || width <= band.placeRoom)
            height: Math.round(Sizes.text * 1.2)
            verticalAlignment: Text.AlignVCenter
            text: band.place
            muted: true
            elide: Text.ElideRight
        }
        TextLabel {
            id: job

            width: Sizes.isSlim ? Math.min(Math.ceil(boldMetrics.advanceWidth(text)), parent.width) : parent.width
            height: Math.round(Sizes.row * 1.1)
            verticalAlignment: Text.AlignVCenter
            text: Selections.job !== "" ? Selections.job : qsTr("No job")
            size: Sizes.text + 2
            font.bold: true
            elide: Text.ElideRight
        }
    }
    Row {
        id: states

        x: Sizes.isSlim ? where.x : buttons.x - spacing - width
        y: Sizes.isSlim ? band.height - height - Sizes.gap / 2 : 0
        height: Sizes.isSlim ? Math.round(Sizes.title * 1.2) : parent.height
        spacing: Sizes.isCompact ? Sizes.gap : 2 * Sizes.gap

        Row {
            anchors.verticalCenter: parent.verticalCenter
            spacing: Sizes.gap
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Receiver: %1").arg(fix.text)

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "receiver"
                color: band.fixColor
            }
            TextLabel {
                id: fix

                anchors.verticalCenter: parent.verticalCenter
                text: Receiver.state === "receiving" ? Receiver.fixText : Receiver.stateText
                size: Sizes.text + 2
                font.bold: true
                color: band.fixColor
            }
            TextLabel {
                anchors.verticalCenter: parent.verticalCenter
                visible: Receiver.state === "receiving" && Receiver.hasFix
                text: Receiver.ageText
                muted: true
            }
        }
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            visible: Drives.hasStick
            name: "stick"
            color: Scheme.muted
            Accessible.role: Accessible.Graphic
            Accessible.name: qsTr("The stick is plugged in")
        }
        TextLabel {
            objectName: "clock"
            anchors.verticalCenter: parent.verticalCenter
            text: Clock.shortTime
            size: Sizes.title
            font.bold: true
        }
    }
    Row {
        id: buttons

        anchors { right: parent.right; rightMargin: Sizes.margin; verticalCenter: parent.verticalCenter }
        spacing: states.spacing

        IconButton {
            objectName: "lock"
            height: band.buttonHeight
            isFlat: true
            icon: "lock"
            accessibleName: qsTr("Lock the screen")
            onClicked: band.lock()
        }
        IconButton {
            objectName: "dayNight"
            height: band.buttonHeight
            icon: Scheme.isDay ? "moon" : "sun"
            accessibleName: Scheme.isDay ? qsTr("Colours of the night") : qsTr("Colours of the day")
            onClicked: Scheme.toggle()
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Sizes.line
        color: Scheme.line
    }
}
