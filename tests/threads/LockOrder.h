#pragma once

#include "LockRecord.h"

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

/// The order of locks as docs/threads.md documents it, and how what was recorded differs from it.
namespace LockOrder {

/// A lock that may be held, and one that may be taken then.
using FPair = std::pair<QByteArray, QByteArray>;

/// The rows of the table under @p heading; empty when the page or the heading does not exist.
std::vector<FPair> Documented(const QString& page, const QByteArray& heading);

/// One sentence for each recorded pair that is not documented, directly or by way of other locks; for each documented
/// pair that was not recorded; and for each documented pair whose reverse is documented too.
QStringList Faults(const std::vector<FPair>& documented, const std::vector<LockRecord::tagPair>& recorded);

} // namespace LockOrder
