import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// The contrasts in which an element takes part, on its ground or as the ground of others: the ratio now, and what it
// should reach where it does not.
//
//     Contrasts { width: 500; model: contrastModel; name: "colors.day.track" }
Flow {
    id: contrasts

    property var model
    // Of the element's parameter.
    property string name
    // A row of a low window has room for what needs attention only.
    property bool lowOnly: false

    Repeater {
        model: contrasts.model

        TextLabel {
            width: Math.min(implicitWidth, contrasts.width)
            rightPadding: Sizes.gap * 2
            wraps: true
            lineHeightMode: Text.FixedHeight
            lineHeight: Sizes.textLine
            height: lineCount * Sizes.textLine
            visible: (model.elementName === contrasts.name || model.groundName === contrasts.name)
                     && !(contrasts.lowOnly && model.isLegible)
            color: model.isLegible ? Scheme.muted : Scheme.attention
            text: {
                var other = model.elementName === contrasts.name ? qsTr("on %1: %2").arg(model.ground)
                                                                : qsTr("under %1: %2").arg(model.element)
                var known = other.arg(model.ratioText)
                return model.isLegible ? known : qsTr("%1, too low: at least %2").arg(known).arg(model.boundText)
            }
        }
    }
}
