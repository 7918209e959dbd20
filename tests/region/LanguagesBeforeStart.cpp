#include "CoreTest.h"
#include "TestHost.h"

#include "region/TRegionSettings.h"

#include <QtTest>

/// In a process of its own: once filled, the tables stay filled.
class LanguagesBeforeStart : public QObject
{
    Q_OBJECT

private slots:
    void everyLanguageIsEmpty();
    void theExtensionOfTheSelectedLanguageIsEmpty();
};

void LanguagesBeforeStart::everyLanguageIsEmpty()
{
    QCOMPARE(int(TRegionSettings::LanguageCount), 28);
    for (int language = 0; language < 28; ++language) {
        QCOMPARE(TRegionSettings::Languages[language], QString());
        QCOMPARE(TRegionSettings::LanguageExtensions[language], QString());
        QCOMPARE(TRegionSettings::GetLanguageString(static_cast<ELanguage>(language)), QString());
    }
}

void LanguagesBeforeStart::theExtensionOfTheSelectedLanguageIsEmpty()
{
    TTestStore store;
    const TRegionSettings region;
    QCOMPARE(region.GetLanguageExtension(), QString());
    store.values[PARAM_LANGUAGE] = 5;
    QCOMPARE(region.GetLanguageExtension(), QString());
}

int main(int argc, char** argv) { return RunCoreTest<LanguagesBeforeStart>(argc, argv); }
#include "LanguagesBeforeStart.moc"
