import QtQuick 2.15
import CabDisplay 1.0
import "../../controls"

// Whether the implement works, over its whole width, and coverage is recorded.
PushButton {
    property bool hasWords: true

    objectName: "working"
    icon: "working"
    iconSize: Math.round(Sizes.icon * 1.2)
    text: !hasWords ? "" : Work.working ? qsTr("Working") : qsTr("Not working")
    checked: Work.working
    accessibleName: Work.working ? qsTr("Working. Switch the implement off") : qsTr("Not working. Switch the implement on")
    onClicked: Work.working = !Work.working
}
