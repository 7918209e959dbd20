import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// Asks for date and time, each by buttons for more and for less. Once a receiver has set the clock, for the time alone,
// which then decides the time zone.
//
//     ClockEntry { id: setting }
//     …
//     setting.ask()
Overlay {
    id: setting

    objectName: "clockEntry"

    // year, month, day, hour, minute
    property var parts: [2000, 1, 1, 0, 0]

    // The place of the first part that can be set.
    readonly property int first: Clock.canSetDate ? 0 : 3
    readonly property var least: [2000, 1, 1, 0, 0]
    readonly property var greatest: [2099, 12, new Date(parts[0], parts[1], 0).getDate(), 23, 59]
    readonly property var digits: [4, 2, 2, 2, 2]
    readonly property var titles: [qsTr("Year"), qsTr("Month"), qsTr("Day"), qsTr("Hour"), qsTr("Minute")]

    function ask() {
        parts = [Clock.year, Clock.month, Clock.day, Clock.hour, Clock.minute]
        open()
    }

    // Goes on at the other end. A day that the month does not have becomes its last one.
    function change(place, by) {
        var changed = parts.slice()
        var count = greatest[place] - least[place] + 1
        changed[place] = least[place] + (changed[place] - least[place] + by + count) % count
        changed[2] = Math.min(changed[2], new Date(changed[0], changed[1], 0).getDate())
        parts = changed
    }

    Column {
        spacing: Sizes.gap * 3

        TextLabel {
            id: heading

            size: Sizes.title
            font.bold: true
            color: Scheme.title
            text: setting.first === 0 ? qsTr("Date and time") : qsTr("Time")
        }

        Grid {
            id: places

            // They end where the title or the buttons below end, or go beyond.
            readonly property real gaps: (columns - 1) * spacing
            readonly property real filling: (Math.max(heading.implicitWidth, answers.implicitWidth) - gaps) / columns
            readonly property real placeWidth: Math.min(Math.max(Sizes.row * 4.5, filling),
                                                        (setting.roomWidth - gaps) / columns)

            columns: Math.min(Sizes.isSlim ? 3 : setting.titles.length, setting.titles.length - setting.first)
            spacing: Sizes.gap * 2

            Repeater {
                model: setting.titles.length - setting.first

                Column {
                    readonly property int place: setting.first + index

                    width: places.placeWidth
                    spacing: Sizes.gap

                    TextLabel {
                        anchors.horizontalCenter: parent.horizontalCenter
                        muted: true
                        text: setting.titles[place]
                    }

                    IconButton {
                        width: parent.width
                        icon: "plus"
                        accessibleName: qsTr("%1: more").arg(setting.titles[place])
                        onClicked: setting.change(place, 1)
                    }

                    TextLabel {
                        anchors.horizontalCenter: parent.horizontalCenter
                        size: Sizes.title
                        font.bold: true
                        text: Clock.digits(setting.parts[place], setting.digits[place])
                    }

                    IconButton {
                        width: parent.width
                        icon: "minus"
                        accessibleName: qsTr("%1: less").arg(setting.titles[place])
                        onClicked: setting.change(place, -1)
                    }
                }
            }
        }

        Row {
            id: answers

            anchors.right: parent.right
            spacing: Sizes.gap * 2

            PushButton {
                text: qsTr("Cancel")
                onClicked: setting.close()
            }

            PushButton {
                text: qsTr("Set")
                primary: true
                onClicked: {
                    setting.close()
                    if (setting.first === 0)
                        Clock.setDateTime(setting.parts[0], setting.parts[1], setting.parts[2], setting.parts[3],
                                          setting.parts[4], 0)
                    else
                        Clock.setTime(setting.parts[3], setting.parts[4], 0)
                }
            }
        }
    }
}
