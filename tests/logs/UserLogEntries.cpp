#include "CoreTest.h"
#include "TBracketTranslator.h"
#include "TLogRoom.h"

#include "logs/TUserDiagnosticLogProxy.h"
#include "logs/TUserLogAccessor.h"
#include "settings/TSettings.h"

#include <QtTest>

#include <climits>

namespace {

/// A store that names every parameter and event alike, and counts how often it was asked.
struct TNamingStore : TTestStore
{
    const QString& GetDiagnosticText(EDiagnosticComponent component, EDiagnosticType type, int code) override
    {
        asked.append(QString::fromLatin1("%1 %2 %3").arg(int(component)).arg(int(type)).arg(code));
        return name;
    }

    QString name;
    QStringList asked;
};

/// The user log in a folder of its own.
struct TUserLog
{
    TUserLog()
    {
        TTestClock::Reset();
        Settings = &settings;
        isOpen = TUserDiagnosticLogProxy().Restore(folder.Path(QLatin1String("User.csv")), 1, 0);
    }

    ~TUserLog() { Settings = nullptr; }

    TUserLog(const TUserLog&) = delete;
    TUserLog& operator=(const TUserLog&) = delete;

    /// What was logged, without the date and time of its one line.
    QByteArray Line() const
    {
        const QByteArray stamp = "2024.03.05-14:05:09:042,";
        const QByteArray content = folder.Content(QLatin1String("User.csv"));
        return content.startsWith(stamp) ? content.mid(stamp.size()) : "no date and time: " + content;
    }

    TNamingStore store;
    TTemporaryFolder folder;
    TSettings settings;
    bool isOpen;
};

const int OutOfRange[] = {-1, 5, 1000, INT_MAX, INT_MIN};

} // namespace

class UserLogEntries : public QObject
{
    Q_OBJECT

private slots:
    void nobodyOwnsAnAccessorAtFirst();

    void componentsHaveNames_data();
    void componentsHaveNames();
    void typesHaveNames_data();
    void typesHaveNames();
    void categoriesHaveNames_data();
    void categoriesHaveNames();
    void categoriesAreTranslated();
    void componentsAndTypesAreNot();

    void separatorsBecomeBlanks_data();
    void separatorsBecomeBlanks();
    void aTextWithoutSeparatorsIsNotCopied();

    void anEventIsALineOfFields_data();
    void anEventIsALineOfFields();
    void onlyTroubleCodesAreTakenAsTheyAre_data();
    void onlyTroubleCodesAreTakenAsTheyAre();
    void plainEntriesStayPossible();
    void aClosedLogRefusesEvents();
};

void UserLogEntries::nobodyOwnsAnAccessorAtFirst() { QVERIFY(!UserLogAccessorPtr); }

void UserLogEntries::componentsHaveNames_data()
{
    QTest::addColumn<int>("component");
    QTest::addColumn<QString>("name");
    QTest::newRow("console") << 0 << QString::fromLatin1("Console");
    QTest::newRow("receiver") << 1 << QString::fromLatin1("GPS Receiver");
    QTest::newRow("steering") << 2 << QString::fromLatin1("Steering Controller");
    QTest::newRow("implement") << 3 << QString::fromLatin1("Implement");
    QTest::newRow("none") << 4 << QString();
    for (int value : OutOfRange)
        QTest::newRow(QByteArray::number(value).constData()) << value << QString();
}

void UserLogEntries::componentsHaveNames()
{
    QFETCH(int, component);
    QFETCH(QString, name);
    QCOMPARE(TUserDiagnosticLogProxy::GetComponentStr(static_cast<EDiagnosticComponent>(component)), name);
}

void UserLogEntries::typesHaveNames_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    QTest::newRow("parameter") << 0 << QString::fromLatin1("Param");
    QTest::newRow("event") << 1 << QString::fromLatin1("Event");
    QTest::newRow("trouble code") << 2 << QString::fromLatin1("DTC");
    QTest::newRow("3") << 3 << QString();
    for (int value : OutOfRange)
        QTest::newRow(QByteArray::number(value).constData()) << value << QString();
}

void UserLogEntries::typesHaveNames()
{
    QFETCH(int, type);
    QFETCH(QString, name);
    QCOMPARE(TUserDiagnosticLogProxy::GetTypeStr(static_cast<EDiagnosticType>(type)), name);
}

void UserLogEntries::categoriesHaveNames_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("name");
    QTest::newRow("critical") << 2 << QString::fromLatin1("Critical");
    QTest::newRow("normal") << 16 << QString::fromLatin1("Normal");
    QTest::newRow("trivial") << 64 << QString::fromLatin1("Trivial");
    QTest::newRow("nothing") << 0 << QString();
    QTest::newRow("critical and normal") << 18 << QString();
    QTest::newRow("all") << 82 << QString();
    const int others[] = {-1, 1, 3, 4, 8, 15, 17, 32, 63, 65, 128, INT_MAX, INT_MIN};
    for (int value : others)
        QTest::newRow(QByteArray::number(value).constData()) << value << QString();
}

void UserLogEntries::categoriesHaveNames()
{
    QFETCH(int, category);
    QFETCH(QString, name);
    QCOMPARE(TUserLogAccessor().GetLoggingCategoryName(static_cast<ELoggingCategory>(category)), name);
}

void UserLogEntries::categoriesAreTranslated()
{
    const TUserLogAccessor accessor;
    {
        const TBracketTranslator translator("TUserLogAccessor");
        QCOMPARE(accessor.GetLoggingCategoryName(LOG_CATEGORY_CRITICAL), QString::fromLatin1("[Critical]"));
        QCOMPARE(accessor.GetLoggingCategoryName(LOG_CATEGORY_NORMAL), QString::fromLatin1("[Normal]"));
        QCOMPARE(accessor.GetLoggingCategoryName(LOG_CATEGORY_TRIVIAL), QString::fromLatin1("[Trivial]"));
        QCOMPARE(accessor.GetLoggingCategoryName(static_cast<ELoggingCategory>(4)), QString());
    }
    QCOMPARE(accessor.GetLoggingCategoryName(LOG_CATEGORY_CRITICAL), QString::fromLatin1("Critical"));
    const TBracketTranslator other("TSystemSettings");
    QCOMPARE(accessor.GetLoggingCategoryName(LOG_CATEGORY_CRITICAL), QString::fromLatin1("Critical"));
}

void UserLogEntries::componentsAndTypesAreNot()
{
    const char* const contexts[] = {"TUserDiagnosticLogProxy", "TUserLogAccessor", "TDiagnosticLogProxy"};
    for (const char* context : contexts) {
        const TBracketTranslator translator(context);
        QCOMPARE(TUserDiagnosticLogProxy::GetComponentStr(DIAG_COMPONENT_CONSOLE), QString::fromLatin1("Console"));
        QCOMPARE(TUserDiagnosticLogProxy::GetTypeStr(DIAG_TYPE_PARAM), QString::fromLatin1("Param"));
    }
}

void UserLogEntries::separatorsBecomeBlanks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("replaced");
    const struct
    {
        const char* name;
        const char* text;
        const char* replaced;
    } rows[] = {
        {"one", "a,b", "a b"},
        {"several", "a,b,c", "a b c"},
        {"in a row", "a,,b", "a  b"},
        {"at the ends", ",a,", " a "},
        {"alone", ",", " "},
        {"none", "a b", "a b"},
        {"empty", "", ""},
        {"look alike", "a;b，c", "a;b，c"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << QString::fromUtf8(row.text) << QString::fromUtf8(row.replaced);
}

void UserLogEntries::separatorsBecomeBlanks()
{
    QFETCH(QString, text);
    QFETCH(QString, replaced);
    QCOMPARE(TUserDiagnosticLogProxy::GetSeparator(), QString::fromLatin1(","));
    QCOMPARE(TUserDiagnosticLogProxy::GetSeparatorReplacement(), QString::fromLatin1(" "));
    QCOMPARE(TUserDiagnosticLogProxy::GetSeparatorReplacedStr(text), replaced);
}

void UserLogEntries::aTextWithoutSeparatorsIsNotCopied()
{
    const QString text = QString::fromLatin1("a b");
    QVERIFY(TUserDiagnosticLogProxy::GetSeparatorReplacedStr(text).constData() == text.constData());
}

void UserLogEntries::anEventIsALineOfFields_data()
{
    QTest::addColumn<int>("component");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text1");
    QTest::addColumn<QString>("text2");
    QTest::addColumn<QByteArray>("line");

    const struct
    {
        const char* name;
        int component;
        int type;
        int code;
        const char* text1;
        const char* text2;
        const char* line;
    } rows[] = {
        {"parameter", 0, 0, 7, "old", "new", "Console,Param,Name,old,new\r\n"},
        {"event", 1, 1, 7, "a", "b", "GPS Receiver,Event,Name,a,b\r\n"},
        {"trouble code", 2, 2, 512, "a", "b", "Steering Controller,DTC,512,a,b\r\n"},
        {"negative code", 3, 2, -512, "a", "b", "Implement,DTC,-512,a,b\r\n"},
        {"least code", 3, 2, INT_MIN, "a", "b", "Implement,DTC,-2147483648,a,b\r\n"},
        {"no component", 4, 2, 0, "a", "b", ",DTC,0,a,b\r\n"},
        {"unknown component", 9, 2, 1, "a", "b", ",DTC,1,a,b\r\n"},
        {"unknown type", 0, 3, 1, "a", "b", "Console,,Name,a,b\r\n"},
        {"empty texts", 0, 2, 1, "", "", "Console,DTC,1,,\r\n"},
        {"commas in the texts", 0, 2, 1, "a,b", ",c,", "Console,DTC,1,a b, c \r\n"},
        {"placeholders in the texts", 0, 2, 1, "%1", "%2", "Console,DTC,1,%1,%2\r\n"},
        {"other letters", 0, 2, 1, "Größe", "畑", "Console,DTC,1,Gr\366\337e,?\r\n"},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << row.component << row.type << row.code << QString::fromUtf8(row.text1)
                                << QString::fromUtf8(row.text2) << QByteArray(row.line);
    }
}

void UserLogEntries::anEventIsALineOfFields()
{
    QFETCH(int, component);
    QFETCH(int, type);
    QFETCH(int, code);
    QFETCH(QString, text1);
    QFETCH(QString, text2);
    QFETCH(QByteArray, line);
    const EDiagnosticComponent theComponent = static_cast<EDiagnosticComponent>(component);
    const EDiagnosticType theType = static_cast<EDiagnosticType>(type);
    {
        TUserLog log;
        QVERIFY(log.isOpen);
        log.store.name = QLatin1String("Name");
        QVERIFY(TUserDiagnosticLogProxy().AddEntry(theComponent, theType, code, text1, text2));
        QCOMPARE(log.Line(), line);
    }

    // The same by way of the accessor.
    TUserLog log;
    log.store.name = QLatin1String("Name");
    TUserLogAccessor accessor;
    QVERIFY(accessor.AddEntry(theComponent, theType, code, text1, text2));
    QCOMPARE(log.Line(), line);
}

void UserLogEntries::onlyTroubleCodesAreTakenAsTheyAre_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<QByteArray>("codeField");
    const QByteArray named = "Rate, low,";
    QTest::newRow("parameter") << 0 << (QStringList() << QLatin1String("3 0 512")) << named;
    QTest::newRow("event") << 1 << (QStringList() << QLatin1String("3 1 512")) << named;
    QTest::newRow("trouble code") << 2 << QStringList() << QByteArray("512");
    QTest::newRow("unknown type") << 3 << (QStringList() << QLatin1String("3 3 512")) << named;
    QTest::newRow("negative type") << -1 << (QStringList() << QLatin1String("3 -1 512")) << named;
}

void UserLogEntries::onlyTroubleCodesAreTakenAsTheyAre()
{
    QFETCH(int, type);
    QFETCH(QStringList, asked);
    QFETCH(QByteArray, codeField);
    TUserLog log;
    log.store.name = QLatin1String("Rate, low,"); // the host's text stays as it is
    const EDiagnosticType theType = static_cast<EDiagnosticType>(type);
    QVERIFY(TUserDiagnosticLogProxy().AddEntry(DIAG_COMPONENT_IMPLEMENT, theType, 512, QLatin1String("a"),
                                               QLatin1String("b")));
    QCOMPARE(log.store.asked, asked);
    const QByteArray typeName = TUserDiagnosticLogProxy::GetTypeStr(theType).toLatin1();
    QCOMPARE(log.Line(), QByteArray("Implement," + typeName + ',' + codeField + ",a,b\r\n"));
}

void UserLogEntries::plainEntriesStayPossible()
{
    const TUserLog log;
    QVERIFY(TUserDiagnosticLogProxy().AddEntry(QLatin1String("a,b")));
    QCOMPARE(log.Line(), QByteArray("a,b\r\n"));
    QVERIFY(log.store.asked.isEmpty());
}

void UserLogEntries::aClosedLogRefusesEvents()
{
    const TUserLog log;
    TUserDiagnosticLogProxy proxy;
    proxy.Close();
    QVERIFY(!proxy.AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_DTC, 1, QString(), QString()));
    QVERIFY(!TUserLogAccessor().AddEntry(DIAG_COMPONENT_CONSOLE, DIAG_TYPE_DTC, 1, QString(), QString()));
    QVERIFY(!proxy.AddEntry(QLatin1String("a")));
    QCOMPARE(log.folder.Content(QLatin1String("User.csv")), QByteArray());
}

int main(int argc, char** argv) { return RunCoreTest<UserLogEntries>(argc, argv); }

#include "UserLogEntries.moc"
