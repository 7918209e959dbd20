import QtQuick 2.15
import QtQuick.Window 2.15
import "."

// What opens above the pages. They do nothing meanwhile, and get the focus back when it closes.
//
//     Layer { id: cover; entry: button; PushButton { id: button; text: qsTr("OK"); onClicked: cover.close() } }
FocusScope {
    id: layer

    // What gets the focus when it opens; null for the layer itself.
    property Item entry: null
    property Item _before: null

    // Before it takes the focus.
    signal opening()
    signal opened()
    signal closed()

    function open() {
        if (visible)
            return
        opening()
        _before = Window.window ? Window.window.activeFocusItem : null
        parent = Sizes.overlay
        ++Sizes.overlay.count
        visible = true
        var first = entry || layer
        first.forceActiveFocus()
        opened()
    }
    function close() {
        if (!visible)
            return
        visible = false
        --Sizes.overlay.count
        if (_before)
            _before.forceActiveFocus()
        _before = null
        closed()
    }

    anchors.fill: visible ? parent : undefined
    visible: false
    Component.onDestruction: {
        if (visible && Sizes.overlay)
            --Sizes.overlay.count
    }
}
