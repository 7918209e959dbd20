import QtQuick 2.15
import CabSettings 1.0
import "../../controls"

// Asks for the value of a setting that is typed: a number by the keypad, anything else as a text.
//
//     ParameterEntry { id: asking }
//     …
//     asking.ask("active.farm")
Item {
    id: asking

    function ask(name) {
        asked.name = name
        if (asked.type === "int")
            keypad.open()
        else
            naming.ask(asked.text)
    }

    Parameter {
        id: asked
    }

    Keypad {
        id: keypad
        parameter: asked
    }

    NameEntry {
        id: naming
        title: asked.title
        hint: asked.accepts
        takesNothing: asked.check("") === ""
        check: function (text) { return asked.check(text) }
        onTyped: function (text) { asked.set(text) }
    }
}
