// The file of the parameter store, with any bytes changed.

#include "stores/TSqliteStore.h"
#include "support/FuzzStore.h"
#include "support/FuzzTarget.h"
#include "support/TFuzzInput.h"
#include "support/TFuzzRoom.h"

#include <QFile>

namespace {

const int MostChanges = 16;
const int HeaderBytes = 100;

/// Changed bytes of a file; the place in 24 bits, and what the byte is combined with.
struct tagDamage
{
    QByteArray bytes;
    int changes = 0;
    int place = 0; ///< of the last byte that became another one
};

tagDamage Damaged(const QByteArray& bytes, TFuzzInput& input)
{
    tagDamage damage = {bytes};
    for (int count = 0; count < MostChanges && !input.IsAtEnd(); ++count) {
        const int low = input.Byte();
        const int middle = input.Byte();
        const int place = (low | middle << 8 | input.Byte() << 16) % static_cast<int>(bytes.size());
        const int change = input.Byte();
        damage.bytes[place] = static_cast<char>(damage.bytes.at(place) ^ change);
        if (change != 0) {
            ++damage.changes;
            damage.place = place;
        }
    }
    return damage;
}

/// Each value is that of the file, that of the good copy, or lost.
void ExpectKnown(const QMap<int, QVariant>& values)
{
    const tagFuzzStore& made = tagFuzzStore::Get();
    for (auto value = values.begin(); value != values.end(); ++value) {
        Expect(value.value() == made.values.value(value.key()) || value.value() == made.goodValues.value(value.key()),
               "a damaged byte gives no wrong value", QString::number(value.key()));
    }
}

void Check(const QByteArray& bytes)
{
    TFuzzInput input(bytes);
    const tagFuzzStore& made = tagFuzzStore::Get();
    const QString path = made.Place();
    const bool isCopyDamaged = input.Bool();
    const QString damagedPath = isCopyDamaged ? path + QLatin1String(".good") : path;
    const tagDamage damage = Damaged(isCopyDamaged ? made.goodCopy : made.file, input);
    FuzzFiles::Make(damagedPath, damage.bytes);
    if (isCopyDamaged)
        QFile::remove(path);

    QString error;
    auto store = TSqliteStore::Open(path, &error);
    if (!store) {
        Expect(!error.isEmpty() && !error.contains(QLatin1Char('\n')), "a refusal is said in one line", error);
        Expect(FuzzFiles::Content(damagedPath) == damage.bytes, "a file that is refused stays as it is");
        Expect(damage.changes != 1 || damage.place < HeaderBytes, "only a header refuses", error);
        return;
    }
    // A row without a digest counts as edited by hand, which takes more than one byte.
    if (damage.changes <= 1) {
        const QMap<int, QVariant> values = store->Values();
        ExpectKnown(values);
        const bool isWhole = values == (isCopyDamaged ? made.goodValues : made.values);
        const QString aside = QLatin1String(".damaged-1"); // a good copy with a damaged row counts as the file already
        Expect(isWhole || QFile::exists(path + aside) || QFile::exists(damagedPath + aside), "a damaged file is kept");
        Expect(damage.changes > 0 || isWhole, "without damage nothing is lost");
    }
    Expect(store->SetParameter(PARAM_FARM, QLatin1String("Hill"), true), "the store takes values");
    const QMap<int, QVariant> values = store->Values();
    store.reset();
    store = TSqliteStore::Open(path, &error);
    Expect(store && store->Values() == values, "what was stored is there at the next opening", error);
}

QList<QByteArray> Seeds()
{
    const tagFuzzStore& made = tagFuzzStore::Get();
    const auto change = [](int place, int with) {
        return TFuzzSeed().Byte(place & 0xff).Byte(place >> 8 & 0xff).Byte(place >> 16).Byte(with);
    };
    QList<QByteArray> seeds = {TFuzzSeed().Byte(0), TFuzzSeed().Byte(1)};
    const int jones = static_cast<int>(made.file.indexOf("Jones"));
    for (const int place :
         {0, 18, 24, 28, 60, 68, 96, 100, 103, 105, 108, 4096, 4099, 4101, 8192, 12288, jones, jones - 8, jones + 6})
        seeds.append(TFuzzSeed().Byte(0).Rest(change(place, 1)));
    seeds.append(TFuzzSeed().Byte(0).Rest(change(jones, 1)).Rest(change(100, 0xff)));
    seeds.append(TFuzzSeed().Byte(1).Rest(change(static_cast<int>(made.goodCopy.indexOf("Smith")), 4)));
    return seeds;
}

} // namespace

namespace FuzzTargets {

tagFuzzTarget StoreFile() { return {"StoreFile", Check, Seeds}; }

} // namespace FuzzTargets
