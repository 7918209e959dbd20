#pragma once

/// Events of the GPS receiver in the user log, as codes of DIAG_COMPONENT_GPS_RECEIVER and DIAG_TYPE_EVENT. Logs carry
/// their names; the numbers never change.
enum EReceiverEvent : int
{
    RECEIVER_EVENT_FIRST_FIX = 1,
    RECEIVER_EVENT_FIX_LOST = 2,
    RECEIVER_EVENT_FIX_REGAINED = 3,
    RECEIVER_EVENT_TIME_SET = 4,
    RECEIVER_EVENT_BAD_CHECKSUMS = 5,
};
