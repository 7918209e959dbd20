import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// Chooses an item that the terminal keeps, such as a vehicle, or names a new one.
//
//     ItemPage { name: "active.vehicle"; navigator: page }
SettingsPanel {
    id: page

    objectName: "itemPage"

    property alias name: parameter.name
    readonly property string kind: name.substring(name.lastIndexOf(".") + 1)

    title: parameter.title
    hasBack: true

    tools: PushButton {
        objectName: "new"
        icon: "plus"
        text: qsTr("New")
        onClicked: naming.ask("")
    }

    Parameter {
        id: parameter
    }

    PagedList {
        anchors.fill: parent
        focus: true
        model: Selections.list(page.kind)
        spacing: Sizes.gap
        delegate: ListRow {
            width: ListView.view.width
            title: Selections.shown(modelData)
            chosen: modelData === parameter.value
            onClicked: {
                parameter.value = modelData
                page.navigator.back()
            }
        }
    }

    NameEntry {
        id: naming
        title: parameter.title
        hint: parameter.accepts
        check: function (text) { return parameter.check(text) }
        onTyped: function (text) {
            parameter.set(text)
            page.navigator.back()
        }
    }
}
