import QtQuick 2.15
import CabSettings 1.0
import "../../controls"
import "../parts"

// The editor of one colour of a scheme: by hue, saturation and lightness, or by its digits. What is chosen is in force
// at once, with the contrasts in which it takes part; the former colour is one tap away.
//
//     ColorPage { name: "colors.day.track"; navigator: page }
SettingsPanel {
    id: page

    objectName: "colorPage"

    property alias name: parameter.name

    // Kept beside the colour: grey has no hue, and black neither hue nor saturation.
    property real hue: 0
    property real saturation: 0
    property real lightness: 0
    property color former

    readonly property color color: parameter.value
    // All bars are on one page with what they change: in a low one, two are side by side.
    readonly property bool isLow: Sizes.isCompact && !Sizes.isPortrait
    // A slim one has the buttons below the title.
    readonly property int between: Sizes.isSlim ? Sizes.gap / 4 : isLow ? Sizes.gap / 2 : Sizes.gap
    // Of the bar of hues, which is not to dazzle.
    readonly property real brightness: Scheme.isDay ? 0.5 : 0.3

    function take(newHue, newSaturation, newLightness) {
        hue = newHue
        saturation = newSaturation
        lightness = newLightness
        parameter.value = Qt.hsla(hue, saturation, lightness, 1)
    }

    function read() {
        hue = color.hslHue < 0 ? hue : color.hslHue
        saturation = color.hslSaturation
        lightness = color.hslLightness
    }

    title: parameter.title
    hasBack: true
    Component.onCompleted: {
        read()
        former = color
    }

    tools: [
        PushButton {
            text: qsTr("Former")
            accessibleName: qsTr("Former colour")
            enabled: !Qt.colorEqual(page.color, page.former)
            onClicked: {
                parameter.value = page.former
                page.read()
            }
        },
        PushButton {
            text: qsTr("First value")
            enabled: !parameter.isDefault
            onClicked: {
                parameter.reset()
                page.read()
            }
        }
    ]

    Parameter {
        id: parameter
    }

    ContrastModel {
        id: contrasts
        day: page.name.indexOf("colors.day.") === 0
    }

    PagedColumn {
        anchors.fill: parent
        focus: true
        spacing: page.between

        Row {
            width: parent.width
            spacing: Sizes.gap * 2

            Swatch {
                id: sample
                width: Sizes.target * 3
                color: page.color
                accessibleName: parameter.shownText
                onClicked: digits.ask(parameter.text)
            }

            PushButton {
                objectName: "digits"
                text: parameter.shownText
                accessibleName: qsTr("Digits of the colour")
                onClicked: digits.ask(parameter.text)
            }

            Contrasts {
                visible: page.isLow
                width: parent.width - x
                anchors.verticalCenter: parent.verticalCenter
                model: contrasts
                name: page.name
            }
        }

        Contrasts {
            visible: !page.isLow
            width: parent.width
            model: contrasts
            name: page.name
        }

        ColorBar {
            width: parent.width
            title: qsTr("Hue")
            isRound: true
            step: 1 / 36
            value: page.hue
            colorAt: function (at) { return Qt.hsla(at, 0.8, page.brightness, 1) }
            onMoved: function (to) { page.take(to, page.saturation, page.lightness) }
        }

        Grid {
            width: parent.width
            columns: page.isLow ? 2 : 1
            columnSpacing: Sizes.gap * 2
            rowSpacing: page.between

            ColorBar {
                width: page.isLow ? (parent.width - parent.columnSpacing) / 2 : parent.width
                title: qsTr("Saturation")
                step: 0.05
                value: page.saturation
                colorAt: function (at) { return Qt.hsla(page.hue, at, page.lightness, 1) }
                onMoved: function (to) { page.take(page.hue, to, page.lightness) }
            }

            ColorBar {
                width: page.isLow ? (parent.width - parent.columnSpacing) / 2 : parent.width
                title: qsTr("Lightness")
                step: 0.025
                value: page.lightness
                colorAt: function (at) { return Qt.hsla(page.hue, page.saturation, at, 1) }
                onMoved: function (to) { page.take(page.hue, page.saturation, to) }
            }
        }
    }

    NameEntry {
        id: digits
        title: parameter.title
        hint: parameter.accepts
        hints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase | Qt.ImhLatinOnly
        check: function (text) { return parameter.check(text) }
        onTyped: function (text) {
            parameter.set(text)
            page.read()
        }
    }
}
