import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// A setting of the colour scheme. A colour has a swatch and its contrasts; another setting is a row as elsewhere.
//
//     ColorRow { width: 900; name: "colors.day.text"; contrasts: model; navigator: page }
Item {
    id: row

    property string name
    property var contrasts
    property var navigator

    implicitHeight: content.height

    Loader {
        id: content
        width: parent.width
        sourceComponent: parameter.type === "color" ? colorRow : otherRow
    }

    Parameter {
        id: parameter
        name: row.name
    }

    Component {
        id: otherRow

        ParameterRow {
            name: row.name
            navigator: row.navigator
        }
    }

    Component {
        id: colorRow

        Item {
            implicitHeight: Math.max(Sizes.target, texts.height) + Sizes.gap * 2 + 1

            Column {
                id: texts
                width: parent.width - swatch.width - Sizes.gap * 3
                anchors.verticalCenter: parent.verticalCenter

                TextLabel {
                    width: parent.width
                    size: Sizes.row
                    wraps: true
                    text: parameter.title
                }

                Contrasts {
                    width: parent.width
                    model: row.contrasts
                    name: row.name
                    lowOnly: Sizes.isCompact
                }
            }

            Swatch {
                id: swatch

                objectName: "color"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                color: parameter.value
                accessibleName: parameter.title
                onClicked: row.navigator.edit(parameter)
            }

            Rectangle {
                anchors.bottom: parent.bottom
                width: parent.width
                height: Sizes.line
                color: Scheme.line
            }
        }
    }
}
