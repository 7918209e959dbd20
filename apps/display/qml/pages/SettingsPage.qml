import QtQuick 2.15
import CabSettings 1.0
import "../controls"
import "parts"

// The settings: sections at the left, the chosen one at the right. Where there is no room for both, a section is opened
// from the list, and leads back to it. A setting that needs a page for its choice opens it in front of the section.
//
//     SettingsPage { anchors.fill: parent; section: "units" }
FocusScope {
    id: page

    // One of the names below; empty shows the list of sections where it has a page of its own, the first section
    // elsewhere.
    property string section
    readonly property string shownSection: section === "" && isWide ? sections[0].name : section

    // The section that leads to the page that is shown.
    readonly property string within: {
        var entry = innerSections.find(function (row) { return row.name === page.section })
        return entry === undefined ? "" : entry.within
    }
    readonly property bool isWide: !Sizes.isNarrow
    readonly property bool hasInner: inner.source.toString() !== ""

    readonly property var sections: [
        { name: "units", title: qsTr("Units"), page: "UnitsPage" },
        { name: "region", title: qsTr("Region"), page: "RegionPage" },
        { name: "colors", title: qsTr("Colours"), page: "ColorsPage" },
        { name: "display", title: qsTr("Display"), page: "GroupPage", group: "display" },
        { name: "machine", title: qsTr("Machine"), page: "MachinePage" },
        { name: "storage", title: qsTr("Storage"), page: "StoragePage" },
        { name: "about", title: qsTr("About"), page: "AboutPage" }
    ]

    // Pages that one of the sections leads to. They can be shown at once, too.
    readonly property var innerSections: [
        { name: "tiles", title: qsTr("Tiles"), page: "TilesPage", within: "display" },
        { name: "profiles", title: qsTr("Profiles"), page: "ProfilesPage", within: "storage" },
        { name: "all", title: qsTr("All settings"), page: "SearchPage", within: "" }
    ]

    // Opens a page in front of the section.
    function open(name, properties) {
        properties.navigator = page
        inner.setSource("settings/" + name + ".qml", properties)
        inner.forceActiveFocus()
    }

    // Closes the page in front, then the page within a section, then the section where it has no list beside it.
    function back() {
        var entry = innerSections.find(function (row) { return row.name === page.section })
        if (hasInner)
            inner.setSource("")
        else if (entry !== undefined)
            section = entry.within
        else if (!isWide)
            section = ""
        forceActiveFocus()
    }

    // Asks for the value of a setting in the way that its type wants.
    function edit(parameter) {
        if (parameter.name === "display.tiles")
            open("TilesPage", {})
        else if (parameter.choices.length > 0)
            open("ChoicePage", { name: parameter.name })
        else if (parameter.type === "color")
            open("ColorPage", { name: parameter.name })
        else
            asking.ask(parameter.name)
    }

    function search() {
        open("SearchPage", {})
    }

    function show() {
        inner.setSource("")
        var entry = sections.concat(innerSections).find(function (row) { return row.name === page.shownSection })
        if (entry === undefined) {
            outer.setSource("")
            return
        }
        var properties = { title: entry.title, navigator: page }
        if (entry.group !== undefined)
            properties.group = entry.group
        outer.setSource("settings/" + entry.page + ".qml", properties)
    }

    onShownSectionChanged: show()
    Component.onCompleted: show()
    Keys.onEscapePressed: back()

    PagedList {
        id: list
        x: Sizes.margin
        y: Sizes.margin
        // Its rows keep their width when there are too many of them, as below a message.
        width: page.isWide ? Sizes.target * 3.1 + turnerWidth : parent.width - 2 * x
        height: parent.height - 2 * y
        visible: page.isWide || (page.shownSection === "" && !page.hasInner)
        model: page.sections
        spacing: Sizes.gap
        delegate: ListRow {
            width: ListView.view.width
            title: modelData.title
            chosen: page.shownSection === modelData.name || page.within === modelData.name
            opens: !page.isWide
            onClicked: page.section = modelData.name
        }
    }

    Item {
        id: room
        x: page.isWide ? list.x + list.width + Sizes.margin : Sizes.margin
        y: Sizes.margin
        width: parent.width - x - Sizes.margin
        height: parent.height - 2 * y

        Loader {
            id: outer
            anchors.fill: parent
            visible: !page.hasInner
            focus: !page.hasInner
        }

        Loader {
            id: inner
            anchors.fill: parent
            focus: page.hasInner
        }
    }

    ParameterEntry {
        id: asking
    }
}
