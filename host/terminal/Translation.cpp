#include "terminal/Translation.h"

#include "region/TRegionSettings.h"
#include "stores/StandardError.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <atomic>

namespace {

QString Catalogue(const QString& folder, const QString& extension)
{
    return folder + QLatin1String("/cabsettings") + extension + QLatin1String(".qm");
}

void SayOnce(const QString& catalogue)
{
    static std::atomic<bool> isSaid{false};
    if (isSaid.exchange(true))
        return;
    const char* const problem = QFile::exists(catalogue) ? "is damaged" : "is missing";
    SayOnStandardError(
        QString::fromLatin1("the catalogue %1 %2; texts are in English").arg(catalogue, QLatin1String(problem)));
}

} // namespace

bool InstallTranslation(QTranslator& translator, const QString& folder)
{
    const QString catalogue = Catalogue(folder, TRegionSettings().GetLanguageExtension());
    const bool isLoaded = translator.load(catalogue);
    if (!isLoaded)
        SayOnce(catalogue);
    const QString english = TRegionSettings::LanguageExtensions[LANGUAGE_ENGLISH];
    if (isLoaded || translator.load(Catalogue(folder, english)))
        QCoreApplication::installTranslator(&translator);
    return isLoaded;
}
