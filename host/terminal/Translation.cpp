#include "terminal/Translation.h"

#include "region/TRegionSettings.h"

#include <QCoreApplication>
#include <QTranslator>

bool InstallTranslation(QTranslator& translator)
{
    const QString extension = TRegionSettings().GetLanguageExtension();
    return translator.load(QLatin1String(":/translations/cabsettings") + extension) &&
           QCoreApplication::installTranslator(&translator);
}
