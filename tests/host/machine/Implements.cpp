#include "TTemporaryFolder.h"

#include "machine/Implement.h"

#include <QtTest>

class Implements : public QObject
{
    Q_OBJECT

private slots:
    void valuesOutOfRangeAreRefused_data();
    void valuesOutOfRangeAreRefused();
};

void Implements::valuesOutOfRangeAreRefused_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("behind");
    QTest::addColumn<int>("sections");
    QTest::addColumn<QString>("problem");
    const QString none;
    QTest::newRow("narrowest") << 1.0 << -5.0 << 1 << none;
    QTest::newRow("widest") << 48.0 << 20.0 << 64 << none;
    QTest::newRow("too narrow") << 0.99 << 4.0 << 1
                                << QString::fromLatin1("invalid width (m) 0.99; expected a number from 1 to 48");
    QTest::newRow("too wide") << 48.5 << 4.0 << 1
                              << QString::fromLatin1("invalid width (m) 48.5; expected a number from 1 to 48");
    QTest::newRow("no number") << qQNaN() << 4.0 << 1
                               << QString::fromLatin1("invalid width (m) nan; expected a number from 1 to 48");
    QTest::newRow("too far behind")
        << 12.0 << 20.1 << 1
        << QString::fromLatin1("invalid distance behind the antenna (m) 20.1; expected a number from -5 to 20");
    QTest::newRow("no section") << 12.0 << 4.0 << 0
                                << QString::fromLatin1("invalid number of sections 0; expected a number from 1 to 64");
}

void Implements::valuesOutOfRangeAreRefused()
{
    QFETCH(double, width);
    QFETCH(double, behind);
    QFETCH(int, sections);
    QFETCH(QString, problem);
    const tagImplement implement = {width, behind, sections};
    QCOMPARE(CheckImplement(implement), problem);

    const TTemporaryFolder folder;
    const QString path = folder.Path(QLatin1String("Boom/Boom.ini"));
    QString error;
    QCOMPARE(WriteImplement(path, implement, &error), problem.isEmpty());
    QCOMPARE(error, problem);
    const std::optional<tagImplement> read = ReadImplement(path, &error);
    QCOMPARE(read.has_value(), problem.isEmpty());
    if (read) {
        QCOMPARE(read->width, width);
        QCOMPARE(read->behind, behind);
        QCOMPARE(read->sections, sections);
    }
}

QTEST_GUILESS_MAIN(Implements)
#include "Implements.moc"
