import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// The choices of one setting, when they are too many for its row. A tap takes the choice and goes back.
//
//     ChoicePage { name: "region.language"; navigator: page }
SettingsPanel {
    id: page

    objectName: "choicePage"

    property alias name: parameter.name
    readonly property int columns: Math.max(1, Math.min(3, Math.floor(width / (Sizes.target * 4))))

    title: parameter.title
    hasBack: true

    Parameter {
        id: parameter
    }

    PagedList {
        id: list
        anchors.fill: parent
        focus: true
        model: Math.ceil(parameter.choices.length / page.columns)
        delegate: Row {
            id: line
            readonly property int first: index * page.columns
            width: ListView.view.width
            height: Sizes.target + Sizes.gap
            spacing: Sizes.gap

            Repeater {
                model: Math.min(page.columns, parameter.choices.length - line.first)

                PushButton {
                    readonly property var choice: parameter.choices[line.first + index]
                    width: (line.width - Sizes.gap * (page.columns - 1)) / page.columns
                    text: choice.text
                    primary: parameter.value === choice.value
                    onClicked: {
                        parameter.value = choice.value
                        page.navigator.back()
                    }
                }
            }
        }

        Component.onCompleted: {
            for (var index = 0; index < parameter.choices.length; ++index) {
                if (parameter.choices[index].value === parameter.value)
                    list.openAt(Math.floor(index / page.columns))
            }
        }
    }
}
