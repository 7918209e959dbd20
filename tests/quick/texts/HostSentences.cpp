#include "TBracketTranslator.h"
#include "TTemporaryFolder.h"

#include "fields/FieldPath.h"
#include "guidance/GuidanceLine.h"
#include "nmea/NmeaAddress.h"
#include "parameters/ItemNames.h"
#include "platform/EParamID.h"
#include "profiles/TProfile.h"
#include "stores/TSqliteStore.h"
#include "texts/HostText.h"
#include "texts/HostTextRows.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include <cerrno>
#include <cstring>

/// The reasons of the host, as a display shows them: whole sentences, and nothing of them in English on a display in
/// another language.
class HostSentences : public QObject
{
    Q_OBJECT

private slots:
    void everyRowIsShown_data();
    void everyRowIsShown();
    void theHostSaysSo();
    void reasonsWithinReasons();
    void namesOfItemsStay();
    void numbersOfThings();
    void whatIsNotKnownIsShown();
    void nothingStaysNothing();

    void namesThatAreRefused_data();
    void namesThatAreRefused();
    void reasonsOfTheSystem_data();
    void reasonsOfTheSystem();
    void reasonsOfConnections();
    void reasonsOfTheDatabase_data();
    void reasonsOfTheDatabase();
    void aStoreThatAnotherProgramHolds();
    void addressesThatAreRefused_data();
    void addressesThatAreRefused();
    void profilesThatAreRefused_data();
    void profilesThatAreRefused();
    void linesThatAreRefused_data();
    void linesThatAreRefused();

private:
    /// Empty, or what is wrong with what a display in another language shows for @p english.
    static QString Problem(const QString& english);
};

namespace {

const int Patience = 30000; ///< milliseconds

const QRegularExpression& Marker()
{
    static const QRegularExpression marker(QLatin1String("%[1-9]"));
    return marker;
}

QString Text(const char* text) { return QString::fromUtf8(text); }

/// What @p text looks like with "value 1" in place of %1, and with a reason that is known in place of @p reason.
QString Filled(QString text, int reason)
{
    text.replace(QString::fromLatin1("%%1").arg(reason), Text("Permission denied"));
    for (int i = 1; i < 10; ++i)
        text.replace(QString::fromLatin1("%%1").arg(i), QString::fromLatin1("value %1").arg(i));
    return text;
}

/// All literals of the host, one after the other, those that the compiler joins joined.
QString HostLiterals()
{
    QString all;
    QDirIterator files(Text(CABSETTINGS_HOST), {Text("*.cpp"), Text("*.h")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly))
            all += QString::fromUtf8(file.readAll());
    }
    all.remove(QRegularExpression(Text("\"\\s*\n\\s*\"")));
    return all.replace(Text("\\\""), Text("\""));
}

/// A connection to an SQLite file.
class TDatabase
{
public:
    explicit TDatabase(const QString& path)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), Name());
        database.setDatabaseName(path);
        database.open();
    }

    ~TDatabase() { QSqlDatabase::removeDatabase(Name()); }

    TDatabase(const TDatabase&) = delete;
    TDatabase& operator=(const TDatabase&) = delete;

    /// Runs a statement. Empty, or why it has failed.
    QString Run(const QString& statement) const
    {
        QSqlQuery query(QSqlDatabase::database(Name()));
        query.exec(statement);
        return query.lastError().databaseText();
    }

private:
    static QString Name() { return QStringLiteral("sentences"); }
};

void AddRefusals(std::initializer_list<const char*> texts)
{
    QTest::addColumn<QString>("refused");
    for (const char* text : texts)
        QTest::newRow(text) << Text(text);
}

} // namespace

QString HostSentences::Problem(const QString& english)
{
    if (english.isEmpty())
        return Text("the host has said nothing");
    const TBracketTranslator translator("Host");
    const QString shown = CabQuick::HostText(english);
    if (!shown.startsWith(QLatin1Char('[')) || !shown.endsWith(QLatin1Char(']')))
        return Text("not translated: ") + shown;
    return shown.contains(Text("Details for the support")) ? Text("not known: ") + english : QString();
}

void HostSentences::everyRowIsShown_data()
{
    QTest::addColumn<QString>("heard");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("reason");
    QTest::addColumn<bool>("isWhole"); // no part of it is a reason or a number of things
    for (const HostTextRows::tagRows& rows : {HostTextRows::OfHost(), HostTextRows::OfSystem()}) {
        for (const HostTextRows::tagRow& row : rows)
            QTest::newRow(row.heard) << Text(row.heard) << Text(row.shown) << row.reason
                                     << (row.reason == 0 && row.count == 0);
    }
}

void HostSentences::everyRowIsShown()
{
    QFETCH(QString, heard);
    QFETCH(QString, shown);
    QFETCH(int, reason);
    QFETCH(bool, isWhole);
    QCOMPARE(Problem(Filled(heard, reason)), QString());
    QVERIFY(shown.at(0).isUpper() || shown.startsWith(QLatin1Char('%')));
    if (isWhole)
        QCOMPARE(CabQuick::HostText(Filled(heard, reason)), Filled(shown, reason));
}

/// A text of the host that has changed would not be known any more.
void HostSentences::theHostSaysSo()
{
    const QString literals = HostLiterals();
    QStringList missing;
    for (const HostTextRows::tagRow& row : HostTextRows::OfHost()) {
        const QStringList parts = Text(row.heard).split(Marker(), Qt::SkipEmptyParts);
        for (const QString& part : parts) {
            const QString words = (part.startsWith(Text(": ")) ? part.mid(2) : part).trimmed(); // a file before it
            if (words.size() > 2 && !literals.contains(words))
                missing.append(words);
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

void HostSentences::reasonsWithinReasons()
{
    QCOMPARE(CabQuick::HostText(Text("/data/F1.abl cannot be read: cannot open /data/F1.abl: Permission denied")),
             Text("/data/F1.abl cannot be read. /data/F1.abl cannot be opened. It is not permitted."));
    QCOMPARE(CabQuick::HostText(Text("cannot write /data/a: b: No space left on device")),
             Text("/data/a: b cannot be written. The drive is full."));
}

void HostSentences::namesOfItemsStay()
{
    QCOMPARE(CabQuick::HostText(Text("the field \"Smith/North/it was unplugged\" exists already")),
             Text("Smith/North/it was unplugged exists already."));
    QCOMPARE(CabQuick::HostText(Text("the field \"%2 %1 %3\" holds 2 file(s)")), Text("%2 %1 %3 holds 2 file(s)."));
}

void HostSentences::numbersOfThings()
{
    QTranslator english;
    QVERIFY(english.load(Text(":/translations/cabsettings_en.qm")));
    QVERIFY(QCoreApplication::installTranslator(&english));
    QCOMPARE(CabQuick::HostText(Text("the job \"J_1\" holds 1 file(s)")), Text("J_1 holds 1 file."));
    QCOMPARE(CabQuick::HostText(Text("the job \"J_1\" is active and holds 12 file(s)")),
             Text("J_1 is active and holds 12 files."));
}

void HostSentences::whatIsNotKnownIsShown()
{
    QCOMPARE(CabQuick::HostText(Text("error 4711")), Text("Details for the support: error 4711"));
}

void HostSentences::nothingStaysNothing() { QVERIFY(CabQuick::HostText(QString()).isEmpty()); }

void HostSentences::namesThatAreRefused_data()
{
    AddRefusals({"", ".", "..", "a/b", "a\\b", "a:b", "a\x01", "a.", "a ", " a", "NUL", "com1.x"});
    QTest::newRow("long") << QString(300, QLatin1Char('x'));
    QTest::newRow("half a character") << QString(QChar(0xd800));
}

void HostSentences::namesThatAreRefused()
{
    QFETCH(QString, refused);
    if (!refused.isEmpty())
        QCOMPARE(Problem(ItemNames::Problem(refused, ItemNames::MostBytes)), QString());
    for (const QStringList& above : {QStringList(), QStringList(Text("Smith"))}) {
        QString error;
        QVERIFY(!FieldPath::IsName(above + QStringList(refused), refused, &error));
        QCOMPARE(Problem(error), QString());
    }
}

void HostSentences::reasonsOfTheSystem_data()
{
    QTest::addColumn<int>("number");
    for (const int number :
         {ENOSPC,       EDQUOT,     EIO,          EROFS,       EACCES,    EPERM,     ENOENT,   ENODEV,
          ENXIO,        EEXIST,     EISDIR,       ENOTDIR,     ENOTEMPTY, ELOOP,     EMLINK,   ENAMETOOLONG,
          EFBIG,        EBUSY,      EAGAIN,       ETXTBSY,     EMFILE,    ENFILE,    ENOMEM,   EINVAL,
          ECONNREFUSED, ECONNRESET, EHOSTUNREACH, ENETUNREACH, ENETDOWN,  EHOSTDOWN, ETIMEDOUT})
        QTest::addRow("%d", number) << number;
}

void HostSentences::reasonsOfTheSystem()
{
    QFETCH(int, number);
    QCOMPARE(Problem(Text("cannot read /data/a: ") + Text(strerrordesc_np(number))), QString());
}

/// Another Qt may say them in other words.
void HostSentences::reasonsOfConnections()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QTcpSocket client;
    client.connectToHost(server.serverAddress(), server.serverPort());
    QVERIFY(server.waitForNewConnection(Patience));
    QVERIFY(client.waitForConnected(Patience));
    delete server.nextPendingConnection();
    QVERIFY(client.state() == QAbstractSocket::UnconnectedState || client.waitForDisconnected(Patience));
    QCOMPARE(client.error(), QAbstractSocket::RemoteHostClosedError);
    QCOMPARE(Problem(client.errorString()), QString());

    const quint16 port = server.serverPort();
    server.close();
    client.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    QVERIFY(!client.waitForConnected(Patience));
    QCOMPARE(client.error(), QAbstractSocket::ConnectionRefusedError);
    QCOMPARE(Problem(client.errorString()), QString());
}

void HostSentences::reasonsOfTheDatabase_data()
{
    QTest::addColumn<QString>("prepare");
    QTest::addColumn<QString>("fail");
    QTest::newRow("full") << Text("PRAGMA max_page_count = 4") << Text("INSERT INTO a VALUES (zeroblob(100000))");
    QTest::newRow("read only") << Text("PRAGMA query_only = 1") << Text("INSERT INTO a VALUES (1)");
}

/// Another SQLite may say them in other words.
void HostSentences::reasonsOfTheDatabase()
{
    QFETCH(QString, prepare);
    QFETCH(QString, fail);
    const TTemporaryFolder folder;
    const TDatabase database(folder.Path(Text("a.db")));
    QCOMPARE(database.Run(Text("CREATE TABLE a (b)")), QString());
    QCOMPARE(database.Run(prepare), QString());
    const QString reason = database.Run(fail);
    QVERIFY(!reason.isEmpty());
    QCOMPARE(Problem(reason), QString());
}

void HostSentences::aStoreThatAnotherProgramHolds()
{
    const TTemporaryFolder folder;
    const QString path = folder.Path(Text("settings.db"));
    const int patience = 50;
    QString error;
    const auto store = TSqliteStore::Open(path, &error, patience);
    QVERIFY2(store, qPrintable(error));
    const TDatabase other(path);
    QCOMPARE(other.Run(Text("BEGIN IMMEDIATE")), QString());
    store->SetParameter(PARAM_METRIC, !store->GetParameter(PARAM_METRIC).toBool(), true);
    QCOMPARE(Problem(store->WriteFailure()), QString());
    QCOMPARE(other.Run(Text("ROLLBACK")), QString());
}

void HostSentences::addressesThatAreRefused_data()
{
    AddRefusals({"tcp://nowhere", "serial://ttyS0", "serial:///dev/ttyS0?baud=1", "http://localhost"});
}

void HostSentences::addressesThatAreRefused()
{
    QFETCH(QString, refused);
    QString error;
    QVERIFY(!ReadNmeaAddress(refused, &error));
    QCOMPARE(Problem(error), QString());
}

void HostSentences::profilesThatAreRefused_data()
{
    AddRefusals({"", " ", "{", "[]", "{}", "text", "{\"product\": \"another\"}", "\xff", "// {}",
                 "{\"product\": \"cabsettings profile\"}", "{\"product\": \"cabsettings profile\", \"format\": 2}",
                 "{\"product\": \"cabsettings profile\", \"format\": 1, \"groups\": 3}"});
}

void HostSentences::profilesThatAreRefused()
{
    QFETCH(QString, refused);
    const TTemporaryFolder folder;
    const QString path = folder.Path(Text("a.profile"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(refused.toLatin1());
    file.close();
    QStringList problems;
    QVERIFY(!TProfile::Read(path, PROFILE_EDITS_REFUSED, &problems));
    QCOMPARE(Problem(problems.first()), QString());
    problems.clear();
    QVERIFY(!TProfile::Read(folder.Path(Text("missing")), PROFILE_EDITS_REFUSED, &problems));
    QCOMPARE(Problem(problems.first()), QString());
    problems.clear();
    QVERIFY(!TProfile::Read(folder.Path(), PROFILE_EDITS_REFUSED, &problems));
    QCOMPARE(Problem(problems.first()), QString());
}

void HostSentences::linesThatAreRefused_data() { AddRefusals({"", "a", "\xFE\xED\xBA\xAC"}); }

void HostSentences::linesThatAreRefused()
{
    QFETCH(QString, refused);
    const TTemporaryFolder folder;
    const QString path = folder.Path(Text("a.line"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(refused.toLatin1());
    file.close();
    QString error;
    QVERIFY(!ReadGuidanceLine(path, &error));
    QCOMPARE(Problem(error), QString());
    QVERIFY(!WriteGuidanceLine(folder.Path(Text("b.line")), {{52, 10}, {52, 10}}, &error));
    QCOMPARE(Problem(error), QString());
    QVERIFY(!WriteGuidanceLine(path + Text("/b.line"), {{52, 10}, {52.01, 10}}, &error));
    QCOMPARE(Problem(error), QString());
}

QTEST_GUILESS_MAIN(HostSentences)
#include "HostSentences.moc"
