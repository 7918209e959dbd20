#pragma once

/// Events of the GPS receiver in the user log: codes of DIAG_COMPONENT_GPS_RECEIVER and DIAG_TYPE_EVENT. The log shows
/// their names; see DiagnosticText(). The numbers never change.
enum EReceiverEvent : int
{
    RECEIVER_EVENT_FIRST_FIX = 1,     ///< text1: position, "latitude longitude" in degrees
    RECEIVER_EVENT_FIX_LOST = 2,      ///< no texts
    RECEIVER_EVENT_FIX_REGAINED = 3,  ///< no texts
    RECEIVER_EVENT_TIME_SET = 4,      ///< text1: UTC; text2: local time; both in ISO form
    RECEIVER_EVENT_BAD_CHECKSUMS = 5, ///< text1: number of sentences with a wrong checksum
    RECEIVER_EVENT_FIX_UNSTABLE = 6,  ///< text1: number of losses without an entry; text2: "fix" or "no fix", the state
    RECEIVER_EVENT_TIME_CORRECTED = 7, ///< text1: UTC as received; text2: UTC as used; both in ISO form
    RECEIVER_EVENT_TIME_REFUSED = 8,   ///< text1: UTC as received, in ISO form; text2: the reason
};
