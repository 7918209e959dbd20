#pragma once

/// The texts of the host that can reach a display.
namespace HostTextRows {

struct tagRow
{
    /// The host's English; %1, %2 … stand in this order for any text.
    const char* heard;

    /// Whole sentences, translated in the context "Host". Their markers are those of what was heard.
    const char* shown;

    int reason = 0; ///< the marker of a text that is itself shown as one of the host; 0 when there is none
    int count = 0;  ///< the marker of the number that %n stands for; 0 when there is none
};

struct tagRows
{
    const tagRow* first;
    const tagRow* last; ///< the one behind the last row

    const tagRow* begin() const { return first; }
    const tagRow* end() const { return last; }
};

/// The host's own texts. The first row that fits counts.
tagRows OfHost();

/// The reasons that the host passes on: of the system, of Qt's connections, and of SQLite.
tagRows OfSystem();

} // namespace HostTextRows
