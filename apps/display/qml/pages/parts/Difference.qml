import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// The value of a setting on this display and in a profile. The one that an import leaves is bold.
//
//     Difference { title: "Area"; ours: "Hectare"; theirs: "Acre"; kept: "theirs" }
SettingRow {
    id: row

    objectName: "difference"

    property string ours
    property string theirs
    property string kept
    property bool isConflict: false

    // In a low window each value stands beside its name: below it, the row would be higher than its list.
    readonly property bool isBeside: Sizes.isCompact && !Sizes.isSlim
    readonly property real half: isBeside ? width / 2 - Sizes.gap : Math.max(Sizes.target * 2, width * 0.25)

    meaning: isConflict ? qsTr("Changed on both sides") : ""

    Row {
        spacing: Sizes.gap * 2

        Repeater {
            model: [{ side: "ours", title: qsTr("Here") }, { side: "theirs", title: qsTr("Profile") }]

            Grid {
                columns: row.isBeside ? 2 : 1
                columnSpacing: Sizes.gap
                width: row.half

                TextLabel {
                    id: side

                    muted: true
                    text: modelData.title
                }

                TextLabel {
                    width: row.isBeside ? parent.width - side.width - Sizes.gap : parent.width
                    size: row.isBeside ? Sizes.text : Sizes.row
                    wraps: true
                    font.bold: row.kept === modelData.side
                    text: modelData.side === "ours" ? row.ours : row.theirs
                }
            }
        }
    }
}
