#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

/// Every threat in docs/threats.md has a test that is there.
class ThreatList : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyThreatHasATest();
    void everyTestIsThere_data();
    void everyTestIsThere();

private:
    static QByteArray Content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList m_Rows;                ///< of the table, without its head
    QMap<QString, QString> m_Programs; ///< the source of a test program, by its name
};

namespace {

const QRegularExpression Test(QLatin1String("`([A-Za-z]+)::([A-Za-z]+)`"));

} // namespace

void ThreatList::initTestCase()
{
    const QString text = QString::fromUtf8(Content(QLatin1String(CABSETTINGS_DOCUMENTS "/threats.md")));
    m_Rows = text.split(QLatin1Char('\n')).filter(QRegularExpression(QLatin1String("^\\|"))).mid(2);
    QDirIterator sources(QLatin1String(CABSETTINGS_TESTS), {QLatin1String("*.cpp")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const QString path = sources.next();
        m_Programs.insert(sources.fileInfo().completeBaseName(), path);
    }
}

void ThreatList::everyThreatHasATest()
{
    QVERIFY(m_Rows.size() > 20);
    for (const QString& row : m_Rows) {
        const QStringList cells = row.split(QLatin1Char('|'));
        QVERIFY2(cells.size() == 6, qPrintable(row));
        for (int cell = 1; cell <= 3; ++cell)
            QVERIFY2(!cells.at(cell).trimmed().isEmpty(), qPrintable(row));
        QVERIFY2(Test.match(cells.at(4)).hasMatch(), qPrintable(row));
    }
}

void ThreatList::everyTestIsThere_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("function");
    for (const QString& row : m_Rows) {
        auto match = Test.globalMatch(row);
        while (match.hasNext()) {
            const QRegularExpressionMatch test = match.next();
            QTest::newRow(qPrintable(test.captured(0))) << test.captured(1) << test.captured(2);
        }
    }
}

void ThreatList::everyTestIsThere()
{
    QFETCH(QString, program);
    QFETCH(QString, function);
    QVERIFY2(m_Programs.contains(program), qPrintable(program));
    const QByteArray source = Content(m_Programs.value(program));
    const auto begin = source.indexOf("private slots:");
    QVERIFY(begin >= 0);
    QVERIFY(source.indexOf("    void " + function.toLatin1() + "()", static_cast<int>(begin)) >= 0);
}

QTEST_GUILESS_MAIN(ThreatList)
#include "ThreatList.moc"
