// The version of the software as it is shown.

#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "system/TSystemSettings.h"

namespace {

void Check(const QByteArray& bytes)
{
    const QString version = QString::fromUtf8(bytes);
    const QString mark = QLatin1String("-r");
    const QString shown = TSystemSettings::BeautifyVersion(version);
    const auto at = version.indexOf(mark);
    Expect(!shown.contains(mark), "no mark of a revision is shown", version);
    Expect(at >= 0 || shown == version, "a version without a revision stays as it is", version);
    Expect(at < 0 || shown.left(at + 1) == version.left(at) + QLatin1Char('.'), "what is before the revision stays",
           version);
    Expect(TSystemSettings::BeautifyVersion(shown) == shown, "a version that is shown stays as it is", version);
    const auto marks = version.count(mark);
    const bool hasOneDigit = at >= 0 && version.size() == at + mark.size() + 1;
    Expect(shown.size() == version.size() - marks + (hasOneDigit ? 1 : 0), "a revision of one digit gets a zero",
           version);
}

QList<QByteArray> Seeds() { return {"2.1.4-r7", "2.1.4-r12", "2.1.4", "-r", "1-r2-r3", "--rr", "2.1-rc1-r9"}; }

} // namespace

namespace FuzzTargets {

tagFuzzTarget Versions() { return {"Versions", Check, Seeds}; }

} // namespace FuzzTargets
