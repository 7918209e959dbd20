#pragma once

/// Events of the terminal itself in the user log: codes of DIAG_COMPONENT_CONSOLE and DIAG_TYPE_EVENT. The log shows
/// their names; see DiagnosticText(). The numbers never change.
enum EConsoleEvent : int
{
    CONSOLE_EVENT_LINES_LOST = 10000, ///< text1: number of lines; text2: "from to", local times in ISO form
};
