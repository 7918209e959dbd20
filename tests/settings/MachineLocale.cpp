#include "Latin1.h"
#include "MachineLocales.h"
#include "TTemporaryFolder.h"
#include "TestHost.h"

#include "logs/TDiagnosticLog.h"
#include "region/TRegionSettings.h"
#include "units/TUnitAbbreviations.h"
#include "units/TUnits.h"

/// The language and place that a machine was set up for change no text of the library: the operator chooses them in the
/// settings, and files and logs are read elsewhere.
class MachineLocale : public QObject
{
    Q_OBJECT

public:
    explicit MachineLocale(const QMap<QByteArray, QStringList>& texts) : m_Texts(texts) {}

private slots:
    void textsAreTheSameInEveryLocale_data() { AddMachineLocales(); }
    void textsAreTheSameInEveryLocale();

private:
    QMap<QByteArray, QStringList> m_Texts;
};

namespace {

struct tagText
{
    QString (*make)();
    const char* text;
};

/// Made with a 12-hour clock and the day before the month, on 2024-03-05 at 14:05:09.042.
const tagText Texts[] = {
    {[] { return TRegionSettings().GetTimeString(); }, "02:05:09 pm"},
    {[] { return TRegionSettings().GetDateString(); }, "5 Mar, 2024"},
    {[] { return TRegionSettings().GetDateTimeString(); }, "050324_1405"},
    {[] { return TRegionSettings().GetDateTimeStringWithSeconds(); }, "050324_140509"},
    {[] { return TUnits::GetDateString(false, TTestClock::date); }, "5 Mar, 2024"},
    {[] { return TUnits::GetValueString(1234567.25, Latin1("kg"), 2, nullptr); }, "1234567.25kg"},
    {[] { return TUnits::GetPressureString(1234.5F); }, "1235 kPa"},
    {[] { return TUnits::GetLatitudeString(-52.5125); }, "-52.51250000"},
    {[] { return TUnits::DisplayableToInternalFloatStr(Latin1("1234.5")); }, "1234.5"},
};

/// The name of a log's file and the line in it.
QString LogFile()
{
    const TTemporaryFolder folder;
    TDiagnosticLog log(0, 1000, 4, PARAM_USER_LOG_FILE_NUMBER);
    log.Restore(folder.Path(Latin1("user.log")), 0, 0);
    log.AddEntry(Latin1("started"));
    log.Close();
    const QString name = folder.Entries().join(Latin1(" "));
    return name + Latin1(": ") + QString::fromLatin1(folder.Content(name));
}

/// Begins with the name of the locale that Qt goes by.
QStringList AllTexts()
{
    TTestClock::Reset();
    TTestStore store;
    TUnitAbbreviations::Initialize();
    store.values[PARAM_METRIC] = true;
    QStringList texts(QLocale::system().name());
    for (const tagText& text : Texts)
        texts.append(text.make());
    store.values[PARAM_24_HOUR_CLOCK] = true;
    store.values[PARAM_MONTH_FIRST] = true;
    texts.append(TRegionSettings().GetTimeString());
    texts.append(TRegionSettings().GetDateTimeString());
    store.values[PARAM_USER_LOG_FILE_NUMBER] = 7;
    texts.append(LogFile());
    return texts;
}

} // namespace

void MachineLocale::textsAreTheSameInEveryLocale()
{
    QFETCH(QByteArray, locale);
    QStringList expected(QString::fromLatin1(locale.constData()).section(QLatin1Char('.'), 0, 0));
    for (const tagText& text : Texts)
        expected.append(Latin1(text.text));
    expected << Latin1("14:05:09") << Latin1("030524_1405")
             << Latin1("user00007.log: 2024.03.05-14:05:09:042,started\r\n");
    QCOMPARE(m_Texts.value(locale).join(Latin1("|")), expected.join(Latin1("|")));
}

int main(int argc, char** argv)
{
    MachineLocale test(InMachineLocales(AllTexts));
    const QCoreApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}

#include "MachineLocale.moc"
