#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <stdexcept>
#include <string>
#include <vector>

/// What is tried with hostile input. The targets are listed in fuzz/CMakeLists.txt; each has a source in fuzz/targets.
///
/// @code
/// for (const tagFuzzTarget& target : FuzzTargets::All())
///     target.check(input); // throws TBrokenProperty
/// @endcode
struct tagFuzzTarget
{
    const char* name;

    /// Feeds any bytes to the code under test, and checks what it promises. Throws TBrokenProperty.
    void (*check)(const QByteArray& input);

    /// Inputs to begin with: what the code itself writes, and recordings.
    QList<QByteArray> (*seeds)();
};

namespace FuzzTargets {

const std::vector<tagFuzzTarget>& All();

/// Null when there is none of this name.
const tagFuzzTarget* Find(const QString& name);

} // namespace FuzzTargets

/// The code under test has broken a promise.
class TBrokenProperty : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Throws TBrokenProperty with @p promise when it does not hold. @p details are added to it.
inline void Expect(bool holds, const char* promise, const QString& details = QString())
{
    if (!holds)
        throw TBrokenProperty(std::string(promise) + (details.isEmpty() ? "" : ": ") + details.toStdString());
}
