#pragma once

#include <QColor>
#include <QString>

/// What the interfaces demand of a call and no more: a call into a shared library, reads of the store, a lock.
namespace Floor {

constexpr float FeetPerMeter = 3.2808399f;
double MetersToFeet(float meters);

int OneRead();
bool TwoReads();
QString ReadUnderLock();
QColor TwoReadsOfAColor();

} // namespace Floor
