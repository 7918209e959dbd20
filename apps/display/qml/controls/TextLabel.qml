import QtQuick 2.15
import CabSettings 1.0
import "."

// A text in the display's colours. One that is too wide for its place shrinks, but never below the smallest text; one
// that may wrap wraps first.
//
//     TextLabel { text: qsTr("Rate"); muted: true }
//     TextLabel { text: row.title; size: Sizes.row }
//     TextLabel { text: row.meaning; muted: true; wraps: true; width: parent.width }
Text {
    property int size: Sizes.text
    property bool muted: false
    property bool wraps: false

    color: muted ? Scheme.muted : Scheme.text
    font.pixelSize: size
    minimumPixelSize: Sizes.text
    fontSizeMode: wraps || size <= Sizes.text ? Text.FixedSize : Text.HorizontalFit
    wrapMode: wraps ? Text.Wrap : Text.NoWrap
    textFormat: Text.PlainText
}
