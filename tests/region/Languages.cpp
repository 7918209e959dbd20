#include "CoreTest.h"
#include "TBracketTranslator.h"
#include "TestHost.h"

#include "region/TRegionSettings.h"

#include <QtTest>

#include <climits>

class Languages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TRegionSettings::InitializeLanguageStrings(); }

    void everyLanguageHasItsOwnNameAndSuffix_data();
    void everyLanguageHasItsOwnNameAndSuffix();
    void theEnumerationHasTheNumbersOfTheTable_data();
    void theEnumerationHasTheNumbersOfTheTable();
    void aNumberThatIsNoLanguageHasNoTexts_data();
    void aNumberThatIsNoLanguageHasNoTexts();
    void theStoredValueIsReadAsANumber_data();
    void theStoredValueIsReadAsANumber();
    void fillingTheTablesAgainChangesNothing();
    void namesAreNeverTranslated();
};

void Languages::everyLanguageHasItsOwnNameAndSuffix_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("name");

    const struct
    {
        const char* suffix;
        const char* name;
    } rows[] = {
        {"_en", "English"},
        {"_de", "Deutsch"},
        {"_fr", "Fran\u00e7ais"},
        {"_es", "Espa\u00f1ol"},
        {"_it", "Italiano"},
        {"_pt", "Portugu\u00eas"},
        {"_ru", "\u0420\u0443\u0441\u0441\u043a\u0438\u0439"},
        {"_nl", "Nederlands"},
        {"_fi", "Suomi"},
        {"_cs", "\u010cesk\u00fd"},
        {"_da", "Dansk"},
        {"_nb", "Norsk"},
        {"_pl", "Polski"},
        {"_sv", "Svenska"},
        {"_ja", "\u65e5\u672c\u8a9e"},
        {"_lv", "Latviski"},
        {"_lt", "Lietuvi\u0173"},
        {"_el", "\u0395\u03bb\u03bb\u03b7\u03bd\u03b9\u03ba\u03ac"},
        {"_bg", "\u0411\u044a\u043b\u0433\u0430\u0440\u0441\u043a\u0438"},
        {"_ro", "Rom\u00e2n\u0103"},
        {"_hu", "Magyar"},
        {"_hr", "Hrvatski"},
        {"_tr", "T\u00fcrk\u00e7e"},
        {"_zh", "\u4e2d\u56fd"},
        {"_et", "Eesti"},
        {"_sr", "Srpski"},
        {"_sk", "Slovensk\u00fd"},
        {"_sl", "Sloven\u0161\u010dina"},
    };
    int language = 0;
    for (const auto& row : rows)
        QTest::newRow(row.suffix) << language++ << QString::fromLatin1(row.suffix) << QString::fromUtf8(row.name);
    QCOMPARE(language, 28);
}

void Languages::everyLanguageHasItsOwnNameAndSuffix()
{
    QFETCH(int, language);
    QFETCH(QString, suffix);
    QFETCH(QString, name);
    TTestStore store;
    store.values[PARAM_LANGUAGE] = language;
    QCOMPARE(TRegionSettings().GetLanguageExtension(), suffix);
    QCOMPARE(TRegionSettings::LanguageExtensions[language], suffix);
    QCOMPARE(TRegionSettings::GetLanguageString(static_cast<ELanguage>(language)), name);
    QCOMPARE(TRegionSettings::Languages[language], name);
}

void Languages::theEnumerationHasTheNumbersOfTheTable_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("suffix");

    const struct
    {
        const char* suffix;
        ELanguage language;
    } rows[] = {
        {"_en", LANGUAGE_ENGLISH},   {"_de", LANGUAGE_GERMAN},     {"_fr", LANGUAGE_FRENCH},
        {"_es", LANGUAGE_SPANISH},   {"_it", LANGUAGE_ITALIAN},    {"_pt", LANGUAGE_PORTUGUESE},
        {"_ru", LANGUAGE_RUSSIAN},   {"_nl", LANGUAGE_DUTCH},      {"_fi", LANGUAGE_FINNISH},
        {"_cs", LANGUAGE_CZECH},     {"_da", LANGUAGE_DANISH},     {"_nb", LANGUAGE_NORWEGIAN},
        {"_pl", LANGUAGE_POLISH},    {"_sv", LANGUAGE_SWEDISH},    {"_ja", LANGUAGE_JAPANESE},
        {"_lv", LANGUAGE_LATVIAN},   {"_lt", LANGUAGE_LITHUANIAN}, {"_el", LANGUAGE_GREEK},
        {"_bg", LANGUAGE_BULGARIAN}, {"_ro", LANGUAGE_ROMANIAN},   {"_hu", LANGUAGE_HUNGARIAN},
        {"_hr", LANGUAGE_CROATIAN},  {"_tr", LANGUAGE_TURKISH},    {"_zh", LANGUAGE_CHINESE},
        {"_et", LANGUAGE_ESTONIAN},  {"_sr", LANGUAGE_SERBIAN},    {"_sk", LANGUAGE_SLOVAK},
        {"_sl", LANGUAGE_SLOVENIAN},
    };
    for (const auto& row : rows)
        QTest::newRow(row.suffix) << int(row.language) << QString::fromLatin1(row.suffix);
}

void Languages::theEnumerationHasTheNumbersOfTheTable()
{
    QFETCH(int, language);
    QFETCH(QString, suffix);
    QCOMPARE(TRegionSettings::LanguageExtensions[language], suffix);
}

void Languages::aNumberThatIsNoLanguageHasNoTexts_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("one too many") << 28;
    QTest::newRow("negative") << -1;
    QTest::newRow("greatest") << INT_MAX;
    QTest::newRow("least") << INT_MIN;
}

void Languages::aNumberThatIsNoLanguageHasNoTexts()
{
    QFETCH(int, number);
    TTestStore store;
    store.values[PARAM_LANGUAGE] = number;
    QCOMPARE(TRegionSettings().GetLanguageExtension(), QString());
    QCOMPARE(TRegionSettings::GetLanguageString(static_cast<ELanguage>(number)), QString());
}

void Languages::theStoredValueIsReadAsANumber_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("absent") << QVariant() << QString::fromLatin1("_en");
    QTest::newRow("numeric text") << QVariant(QString::fromLatin1("14")) << QString::fromLatin1("_ja");
    QTest::newRow("text") << QVariant(QString::fromLatin1("_ja")) << QString::fromLatin1("_en");
}

void Languages::theStoredValueIsReadAsANumber()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, suffix);
    TTestStore store;
    if (stored.isValid())
        store.values[PARAM_LANGUAGE] = stored;
    QCOMPARE(TRegionSettings().GetLanguageExtension(), suffix);
    QCOMPARE(store.reads, QList<int>() << 9009);
}

void Languages::fillingTheTablesAgainChangesNothing()
{
    QStringList before;
    QStringList after;
    for (int language = 0; language < 28; ++language)
        before << TRegionSettings::Languages[language] << TRegionSettings::LanguageExtensions[language];
    TRegionSettings::Languages[3] = QString::fromLatin1("spoilt");
    TRegionSettings::InitializeLanguageStrings();
    for (int language = 0; language < 28; ++language)
        after << TRegionSettings::Languages[language] << TRegionSettings::LanguageExtensions[language];
    QCOMPARE(after, before);
}

void Languages::namesAreNeverTranslated()
{
    const TBracketTranslator translator("TRegionSettings");
    TRegionSettings::InitializeLanguageStrings();
    QCOMPARE(TRegionSettings::GetLanguageString(LANGUAGE_ENGLISH), QString::fromLatin1("English"));
    QCOMPARE(TRegionSettings::GetLanguageString(LANGUAGE_GERMAN), QString::fromLatin1("Deutsch"));
    QCOMPARE(TRegionSettings::LanguageExtensions[LANGUAGE_GERMAN], QString::fromLatin1("_de"));
}

int main(int argc, char** argv) { return RunCoreTest<Languages>(argc, argv); }
#include "Languages.moc"
