#pragma once

#include "receiver/TReceiver.h"

#include <QString>

/// What the receiver says to the operator.
namespace ReceiverTexts {

QString StateName(TReceiver::EState state);
QString StateText(TReceiver::EState state);

/// "RTK"
QString Fix(int quality, bool hasFix);

/// "0.1 s"; empty for NaN.
QString Age(double seconds);

/// "0.9"; empty for NaN.
QString Dilution(double hdop);

/// "14": digits alone, as for all numbers of the display.
QString Count(double count);

// Sentences, with the reason that the host gives.
QString Silent();
QString Lost(const QString& reason);
QString Unreadable(const QString& error);
QString Ended(const QString& address);

} // namespace ReceiverTexts
