#include "access/Parameters.h"
#include "region/TRegionSettings.h"

QString TRegionSettings::Languages[LanguageCount];
QString TRegionSettings::LanguageExtensions[LanguageCount];

namespace {

struct tagLanguage
{
    const char* extension;
    const wchar_t* name; ///< in that language, so that every operator finds it; never translated
};

/// Indexed by ELanguage.
constexpr tagLanguage LanguageTable[] = {
    {"_en", L"English"},   {"_de", L"Deutsch"},   {"_fr", L"Français"},    {"_es", L"Español"},   {"_it", L"Italiano"},
    {"_pt", L"Português"}, {"_ru", L"Русский"},   {"_nl", L"Nederlands"},  {"_fi", L"Suomi"},     {"_cs", L"Český"},
    {"_da", L"Dansk"},     {"_nb", L"Norsk"},     {"_pl", L"Polski"},      {"_sv", L"Svenska"},   {"_ja", L"日本語"},
    {"_lv", L"Latviski"},  {"_lt", L"Lietuvių"},  {"_el", L"Ελληνικά"},    {"_bg", L"Български"}, {"_ro", L"Română"},
    {"_hu", L"Magyar"},    {"_hr", L"Hrvatski"},  {"_tr", L"Türkçe"},      {"_zh", L"中国"},      {"_et", L"Eesti"},
    {"_sr", L"Srpski"},    {"_sk", L"Slovenský"}, {"_sl", L"Slovenščina"},
};

static_assert(sizeof(LanguageTable) / sizeof(LanguageTable[0]) == TRegionSettings::LanguageCount,
              "one row for each language");

QString At(const QString (&texts)[TRegionSettings::LanguageCount], int language)
{
    return language >= 0 && language < TRegionSettings::LanguageCount ? texts[language] : QString();
}

} // namespace

void TRegionSettings::InitializeLanguageStrings()
{
    for (int i = 0; i < LanguageCount; ++i) {
        Languages[i] = QString::fromWCharArray(LanguageTable[i].name);
        LanguageExtensions[i] = QLatin1String(LanguageTable[i].extension);
    }
}

QString TRegionSettings::GetLanguageString(ELanguage language) { return At(Languages, language); }

QString TRegionSettings::GetLanguageExtension() const
{
    return At(LanguageExtensions, Parameters::ReadInt(PARAM_LANGUAGE));
}
