#pragma once

class TParameterHub;

/// A parameter of which the library uses the value of the start for as long as the program runs.
struct tagRestartRow
{
    int number;
    int (TParameterHub::*atStart)() const;
    const char* reason; ///< a sentence, to be translated in the context TRestart
};

/// Null when a change of the parameter counts at once.
const tagRestartRow* FindRestartRow(int number);
