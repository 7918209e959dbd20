#include "CoreTest.h"

#include "units/UnitLists.h"

#include <QList>

#include <cstddef>

namespace {

using TNumbers = QList<int>;

template <std::size_t Count>
TNumbers NumbersOf(const EUnitsType (&list)[Count])
{
    TNumbers numbers;
    for (const EUnitsType unit : list)
        numbers << unit;
    return numbers;
}

} // namespace

Q_DECLARE_METATYPE(TNumbers)

class UnitLists : public QObject
{
    Q_OBJECT

private slots:
    void everyProductHasItsUnitsInOrder_data();
    void everyProductHasItsUnitsInOrder();
};

void UnitLists::everyProductHasItsUnitsInOrder_data()
{
    QTest::addColumn<TNumbers>("units");
    QTest::addColumn<TNumbers>("expected");
    QTest::newRow("seed") << NumbersOf(SEED_UNITS) << (TNumbers() << 100 << 101);
    QTest::newRow("granular") << NumbersOf(GRANULAR_UNITS) << (TNumbers() << 75 << 76 << 78 << 77);
    QTest::newRow("NH3") << NumbersOf(NH3_UNITS) << (TNumbers() << 80 << 81 << 83 << 82);
    QTest::newRow("Kesta sprayer") << NumbersOf(KESTA_SPRAYER_UNITS) << (TNumbers() << 28 << 30 << 75 << 79);
    QTest::newRow("liquid") << NumbersOf(LIQUID_UNITS)
                            << (TNumbers() << 28 << 29 << 34 << 35 << 32 << 33 << 30 << 31 << 39 << 38 << 37 << 36 << 40
                                           << 41 << 42 << 43 << 44 << 45 << 78 << 77 << 46 << 47 << 48);
}

void UnitLists::everyProductHasItsUnitsInOrder()
{
    QFETCH(TNumbers, units);
    QFETCH(TNumbers, expected);
    QCOMPARE(units, expected);
    for (const int unit : units)
        QCOMPARE(units.count(unit), 1);
}

int main(int argc, char** argv) { return RunCoreTest<UnitLists>(argc, argv); }
#include "UnitLists.moc"
