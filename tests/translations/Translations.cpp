#include "TCatalogue.h"

#include "platform/TConfigManager.h"
#include "region/TRegionSettings.h"
#include "stores/TMemoryStore.h"
#include "terminal/Translation.h"
#include "units/TUnitAbbreviations.h"
#include "units/table/UnitTable.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

#include <iterator>
#include <map>

/// Every language that the display offers has a whole catalogue.
class Translations : public QObject
{
    Q_OBJECT

private slots:
    void everyLanguageOfTheDisplayHasOne();
    void catalogueHasEveryText_data() { AddLanguages(); }
    void catalogueHasEveryText();
    void everyTextIsFinished_data() { AddLanguages(); }
    void everyTextIsFinished();
    void placeMarkersAreAllThere_data() { AddLanguages(); }
    void placeMarkersAreAllThere();
    void everyTextIsFound_data() { AddLanguages(); }
    void everyTextIsFound();
    void pluralFormsAreThoseOfTheLanguage_data() { AddLanguages(); }
    void pluralFormsAreThoseOfTheLanguage();
    void unitsOfAQuantityDiffer_data() { AddLanguages(); }
    void unitsOfAQuantityDiffer();
    void monthsAreThoseOfTheLanguage_data() { AddLanguages(); }
    void monthsAreThoseOfTheLanguage();
    void differencesFromTheMonthsOfTheLanguageHaveAReason();

private:
    static void AddLanguages();
};

namespace {

const int Months = 12;

/// Enough numbers for every plural rule of Qt.
const int MostThings = 220;

QString Text(const char* text) { return QString::fromUtf8(text); }

QString SourcePath(const QString& language)
{
    return Text(CABSETTINGS_TRANSLATIONS "/cabsettings_%1.ts").arg(language);
}

QString Describe(const tagMessage& message) { return message.context + Text(": ") + message.source; }

QString Key(const tagMessage& message)
{
    return message.context + QChar(0) + message.source + QChar(0) + message.comment;
}

QStringList Keys(const TCatalogue& catalogue, bool withPluralsAlone)
{
    QStringList keys;
    for (const tagMessage& message : catalogue.Messages()) {
        if (message.isPlural || !withPluralsAlone)
            keys.append(Key(message));
    }
    keys.sort();
    return keys;
}

QStringList Markers(const QString& text)
{
    static const QRegularExpression marker(Text("%L?[1-9n]"));
    QStringList markers;
    QRegularExpressionMatchIterator matches = marker.globalMatch(text);
    while (matches.hasNext())
        markers.append(matches.next().captured());
    markers.sort();
    return markers;
}

QString Found(const QTranslator& translator, const tagMessage& message, int count)
{
    const QByteArray comment = message.comment.toUtf8();
    return translator.translate(message.context.toUtf8().constData(), message.source.toUtf8().constData(),
                                comment.isEmpty() ? nullptr : comment.constData(), count);
}

/// As a display in this language does it. The texts are in this language as long as the translator lives.
bool Load(QTranslator& translator, const QString& language)
{
    TMemoryStore store;
    ConfigManager = &store;
    TRegionSettings::InitializeLanguageStrings();
    for (int i = 0; i < TRegionSettings::LanguageCount; ++i) {
        if (TRegionSettings::LanguageExtensions[i] == QLatin1Char('_') + language)
            store.SetParameter(PARAM_LANGUAGE, i, false);
    }
    const bool isLoaded = store.HasParameter(PARAM_LANGUAGE) && InstallTranslation(translator);
    ConfigManager = nullptr;
    return isLoaded;
}

/// A month of a language that is not the one of the CLDR, and why.
struct tagOtherMonth
{
    QString language;
    int month;
    QString text;
    QString reason;
};

QList<tagOtherMonth> OtherMonths()
{
    QList<tagOtherMonth> months;
    QFile file(Text(CABSETTINGS_TRANSLATIONS "/months.tsv"));
    file.open(QIODevice::ReadOnly);
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QStringList fields = line.split(QLatin1Char('\t'));
        if (fields.size() == 4)
            months.append({fields.at(0), fields.at(1).toInt(), fields.at(2), fields.at(3)});
    }
    return months;
}

QString Plain(const QString& month) { return month.toLower().remove(QLatin1Char('.')); }

/// Whether the language's short name of the month, with or without a day beside it, is this text.
bool IsOfTheLanguage(const QString& language, int month, const QString& text)
{
    const QLocale locale(language == Text("sr") ? Text("sr_Latn") : language); // the catalogue is in Latin letters
    return Plain(text) == Plain(locale.monthName(month, QLocale::ShortFormat)) ||
           Plain(text) == Plain(locale.standaloneMonthName(month, QLocale::ShortFormat));
}

} // namespace

void Translations::AddLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = Text(CABSETTINGS_LANGUAGES).split(QLatin1Char(' '));
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void Translations::everyLanguageOfTheDisplayHasOne()
{
    TRegionSettings::InitializeLanguageStrings();
    const QStringList languages = Text(CABSETTINGS_LANGUAGES).split(QLatin1Char(' '));
    for (const QString& extension : TRegionSettings::LanguageExtensions)
        QVERIFY2(languages.contains(extension.mid(1)), qPrintable(extension));
    QCOMPARE(languages.size(), int{TRegionSettings::LanguageCount});
}

/// The texts are those of German, of which another test finds that they are those of the sources. English needs plural
/// forms alone.
void Translations::catalogueHasEveryText()
{
    QFETCH(QString, language);
    const TCatalogue catalogue(SourcePath(language));
    QCOMPARE(catalogue.Error(), QString());
    QCOMPARE(catalogue.Language(), language);
    const TCatalogue german(SourcePath(Text("de")));
    QVERIFY(german.Messages().size() > 700);
    QCOMPARE(Keys(catalogue, false), Keys(german, language == Text("en")));
}

void Translations::everyTextIsFinished()
{
    QFETCH(QString, language);
    const TCatalogue catalogue(SourcePath(language));
    QVERIFY(!catalogue.Messages().isEmpty());
    for (const tagMessage& message : catalogue.Messages()) {
        QVERIFY2(message.isFinished, qPrintable(Describe(message)));
        for (const QString& form : message.forms)
            QVERIFY2(!form.trimmed().isEmpty(), qPrintable(Describe(message)));
    }
}

void Translations::placeMarkersAreAllThere()
{
    QFETCH(QString, language);
    const TCatalogue catalogue(SourcePath(language));
    for (const tagMessage& message : catalogue.Messages()) {
        for (const QString& form : message.forms) {
            QVERIFY2(Markers(form) == Markers(message.source), qPrintable(Describe(message)));
            QVERIFY2(form.count(QLatin1Char('\n')) == message.source.count(QLatin1Char('\n')),
                     qPrintable(Describe(message)));
        }
    }
}

void Translations::everyTextIsFound()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(Load(translator, language));
    const TCatalogue catalogue(SourcePath(language));
    for (const tagMessage& message : catalogue.Messages()) {
        if (!message.isPlural)
            QCOMPARE(Found(translator, message, -1), message.forms.first());
    }
}

/// Each form is used for some number, and every number has one.
void Translations::pluralFormsAreThoseOfTheLanguage()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(Load(translator, language));
    const TCatalogue catalogue(SourcePath(language));
    int plurals = 0;
    for (const tagMessage& message : catalogue.Messages()) {
        if (!message.isPlural)
            continue;
        ++plurals;
        QStringList unused = message.forms;
        for (int count = 0; count < MostThings; ++count) {
            const QString found = Found(translator, message, count);
            QVERIFY2(message.forms.contains(found), qPrintable(Describe(message)));
            unused.removeAll(found);
        }
        QVERIFY2(unused.isEmpty(), qPrintable(Describe(message)));
    }
    QVERIFY(plurals > 0);
}

/// An operator could not tell which one is meant, and a typed unit would be taken for the other.
void Translations::unitsOfAQuantityDiffer()
{
    QFETCH(QString, language);
    TUnitAbbreviations::Initialize();
    QStringList english;
    for (const tagUnit& unit : UnitTable)
        english.append(TUnitAbbreviations::UnitAbbreviations[unit.type]);

    QTranslator translator;
    QVERIFY(Load(translator, language));
    TUnitAbbreviations::Initialize();
    std::map<std::pair<int, QString>, int> first; // by the quantity's unit and the abbreviation
    for (std::size_t i = 0; i < std::size(UnitTable); ++i) {
        const tagUnit& unit = UnitTable[i];
        const QString text = TUnitAbbreviations::UnitAbbreviations[unit.type].toCaseFolded();
        const auto [before, isNew] = first.insert({{unit.hub, text}, static_cast<int>(i)});
        const QString& own = english.at(static_cast<int>(i));
        const bool isSameInEnglish = own.compare(english.at(before->second), Qt::CaseInsensitive) == 0;
        QVERIFY2(isNew || text.isEmpty() || isSameInEnglish,
                 qPrintable(own + Text(" and ") + english.at(before->second) + Text(" are both ") + text));
    }
}

void Translations::monthsAreThoseOfTheLanguage()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(Load(translator, language));
    const char* const english[Months] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const QList<tagOtherMonth> others = OtherMonths();
    for (const char* const context : {"TUnitAbbreviations", "TRegionSettings"}) {
        for (int month = 1; month <= Months; ++month) {
            const QString found = translator.translate(context, english[month - 1]);
            const QString text = found.isEmpty() ? Text(english[month - 1]) : found;
            const bool isOther = std::any_of(others.begin(), others.end(), [&](const tagOtherMonth& other) {
                return other.language == language && other.month == month && other.text == text;
            });
            QVERIFY2(isOther || IsOfTheLanguage(language, month, text), qPrintable(text));
        }
    }
}

void Translations::differencesFromTheMonthsOfTheLanguageHaveAReason()
{
    TRegionSettings::InitializeLanguageStrings();
    for (const tagOtherMonth& other : OtherMonths()) {
        const auto* const found =
            std::find(std::begin(TRegionSettings::LanguageExtensions), std::end(TRegionSettings::LanguageExtensions),
                      QLatin1Char('_') + other.language);
        QVERIFY2(found != std::end(TRegionSettings::LanguageExtensions), qPrintable(other.language));
        QVERIFY2(other.month >= 1 && other.month <= Months && !other.reason.isEmpty(), qPrintable(other.text));
    }
}

QTEST_GUILESS_MAIN(Translations)
#include "Translations.moc"
