#include "display/keyboard/ScreenKeyboard.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLoggingCategory>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* InputMethodVariable = "QT_IM_MODULE";
constexpr const char* InputMethod = "qtvirtualkeyboard";

/// What the keyboard is made of; a package of its own each.
constexpr const char* Modules[] = {"QtQuick/VirtualKeyboard", "Qt/labs/folderlistmodel", "QtQuick/Layouts"};

/// Keeps the keyboard from opening a window of its own, with a second keyboard in it.
constexpr const char* NoWindowVariable = "QT_VIRTUALKEYBOARD_DESKTOP_DISABLE";

bool HasPlugin()
{
    const QStringList folders = QCoreApplication::libraryPaths();
    return std::any_of(folders.begin(), folders.end(), [](const QString& folder) {
        const QDir plugins(folder + QLatin1String("/platforminputcontexts"));
        return !plugins.entryList({QLatin1String("*qtvirtualkeyboardplugin.*")}, QDir::Files).isEmpty();
    });
}

bool HasModules()
{
    QStringList folders = QString::fromLocal8Bit(qgetenv("QML2_IMPORT_PATH")).split(QDir::listSeparator());
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    folders.append(QLibraryInfo::location(QLibraryInfo::Qml2ImportsPath));
#else
    folders.append(QLibraryInfo::path(QLibraryInfo::QmlImportsPath));
#endif
    return std::all_of(std::begin(Modules), std::end(Modules), [&folders](const char* module) {
        return std::any_of(folders.begin(), folders.end(), [module](const QString& folder) {
            return QFileInfo::exists(folder + QLatin1Char('/') + QLatin1String(module) + QLatin1String("/qmldir"));
        });
    });
}

/// Looks where Qt will look. To ask for a keyboard that is not there, or only half of it, would leave the program
/// without any input method.
bool IsInstalled() { return HasPlugin() && HasModules(); }

/// The one of the country that gave the language its name, else the first one of the language.
QString LocaleFor(const QString& language, const QStringList& available)
{
    QString own = language + QLatin1Char('_') + language.toUpper();
    if (available.contains(own))
        return own;
    const auto found = std::find_if(available.begin(), available.end(), [&language](const QString& locale) {
        return locale.section(QLatin1Char('_'), 0, 0) == language;
    });
    return found == available.end() ? QString() : *found;
}

} // namespace

void ScreenKeyboard::Choose()
{
    if (!qEnvironmentVariableIsSet(InputMethodVariable) && IsInstalled())
        qputenv(InputMethodVariable, InputMethod);
    if (!IsChosen())
        return;
    qputenv(NoWindowVariable, "1");
    // Names are typed without suggestions: it does not matter that there is no dictionary for them.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.virtualkeyboard.hunspell.warning=false"));
}

bool ScreenKeyboard::IsChosen() { return qgetenv(InputMethodVariable) == InputMethod && IsInstalled(); }

QStringList ScreenKeyboard::LocalesFor(const QString& language, const QStringList& available)
{
    QStringList locales;
    for (const QString& wanted : {language, QStringLiteral("en")}) {
        const QString locale = LocaleFor(wanted, available);
        if (!locale.isEmpty() && !locales.contains(locale))
            locales.append(locale);
    }
    return locales;
}
