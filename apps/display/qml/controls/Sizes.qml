pragma Singleton
import QtQuick 2.15

// The sizes that all pages share, in pixels, for the size of the window. The window sets width, height, overlay,
// keyboard and byKeys.
//
//     width: Sizes.target
//     anchors.margins: Sizes.gap
//     font.pixelSize: Sizes.row
//
// From 1280 × 800 on, everything grows with the window. Smaller windows keep the size of texts and show less.
QtObject {
    // Of the window.
    property real width: 1280
    property real height: 800
    // The item above the pages in which keypads and questions open.
    property Item overlay: null
    // Of the keyboard on the screen; 0 while there is none. What is typed stands above it.
    property real keyboard: 0
    // Keys or the knob are used, rather than a finger: what has the focus is framed.
    property bool byKeys: false

    readonly property bool isPortrait: height > width
    // A window as low as 480 px: bands, titles and targets are smaller.
    readonly property bool isCompact: Math.min(width, height) < 560
    // A page as narrow as 800 px: one column, and doors whose icon stands above the word.
    readonly property bool isNarrow: width < 1000 * scale
    // A window as narrow as 480 px: the bands have two lines, and a title stands above its buttons.
    readonly property bool isSlim: width < 640 * scale
    readonly property real scale: Math.max(1, Math.min(Math.max(width, height) / 1280, Math.min(width, height) / 800))

    readonly property int target: isCompact ? 60 : Math.round(76 * scale)
    readonly property int key: isCompact ? 80 : Math.round(97 * scale)
    readonly property int gap: Math.round(8 * scale)
    readonly property int margin: isCompact ? 8 : Math.round(12 * scale)
    readonly property int radius: Math.round(10 * scale)
    readonly property int line: Math.max(1, Math.floor(scale))
    readonly property int stateBand: isSlim ? 76 : isCompact ? 60 : Math.round(72 * scale)
    readonly property int doorBand: isSlim ? 2 * target + 3 * gap : isCompact ? 64 : Math.round(92 * scale)
    readonly property int icon: Math.round(32 * scale)

    // Fonts. No text is smaller than text, and no main figure smaller than figureLeast.
    readonly property int main: isCompact ? 60 : Math.round(84 * scale)
    readonly property int figure: Math.round(50 * scale)
    readonly property int figureLeast: Math.round(48 * scale)
    readonly property int title: isCompact ? 28 : Math.round(34 * scale)
    readonly property int row: isCompact ? 26 : Math.round(30 * scale)
    readonly property int text: Math.round(24 * scale)
    // Of a line of that text, where every pixel counts: by itself it is higher with Qt 6 than with Qt 5.
    readonly property int textLine: Math.round(1.25 * text)
}
