#include "display/session/TDisplaySession.h"

#include "display/DisplayTypes.h"
#include "display/backgrounds/TBackgroundProvider.h"
#include "display/fonts/DisplayFont.h"
#include "display/icons/TIconProvider.h"
#include "display/keyboard/ScreenKeyboard.h"
#include "display/language/DisplayLanguage.h"
#include "display/shot/PageTable.h"

#include "module/CabQuick.h"
#include "parameters/HostParameters.h"
#include "parameters/TParameterCatalogue.h"
#include "stores/TChangeAuthor.h"
#include "stores/TSqliteStore.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QCoreApplication>
#include <QDir>
#include <QQuickWindow>

#include <algorithm>
#include <cstdio>

namespace {

/// How long a tap may wait for another program that has the settings locked. What is not written then is tried again.
const int StorePatienceMs = 500;

/// The patience of an opening would be that of each tap. So a store that is locked is awaited by an opening of its own,
/// and then opened again.
std::unique_ptr<TSqliteStore> OpenStore(const QString& path, QString* error, int patience)
{
    std::unique_ptr<TSqliteStore> store = TSqliteStore::Open(path, error, std::min(patience, StorePatienceMs));
    if (store || patience <= StorePatienceMs)
        return store;
    std::fprintf(stderr, "cabdisplay: %s; it is tried for %d s\n", qUtf8Printable(*error), patience / 1000);
    const bool isThere = TSqliteStore::Open(path, error, patience) != nullptr; // fails at once if it is not locked
    return isThere ? TSqliteStore::Open(path, error, StorePatienceMs) : nullptr;
}

/// Stores what the command line says as the pages of the settings would. An empty text leaves the parameter as it is.
bool StoreOption(TSqliteStore& store, EParamID id, const QString& text, QString* error)
{
    if (text.isEmpty())
        return true;
    const TChangeAuthor author(CHANGE_AUTHOR_OPERATOR);
    const QVariant value = TParameterCatalogue::Read(*TParameterCatalogue::Find(id), text, error);
    return value.isValid() && store.SetParameter(id, value, true);
}

} // namespace

TDisplaySession::TDisplaySession() = default;

TDisplaySession::~TDisplaySession()
{
    m_Engine.reset();
    CabQuick::Withdraw();
}

bool TDisplaySession::Start(const tagDisplayOptions& options, QString* error, int patience)
{
    if (!QDir().mkpath(options.dataFolder)) {
        *error = QString::fromLatin1("cannot create the data folder \"%1\"").arg(options.dataFolder);
        return false;
    }
    m_Store = OpenStore(DataFolder::StoreFile(options.dataFolder), error, patience);
    if (!m_Store || !StoreOption(*m_Store, PARAM_RECEIVER_ADDRESS, options.receiver, error) ||
        !StoreOption(*m_Store, PARAM_LANGUAGE, options.language, error))
        return false;
    m_Terminal = std::make_unique<TTerminal>(*m_Store);
    if (!m_Terminal->Start(options.dataFolder, error, {QLatin1String(CABSETTINGS_VERSION)}))
        return false;
    CabQuick::Publish(*m_Store, options.dataFolder);
    InstallDisplayFont(DisplayLanguage());
    RegisterDisplayTypes();
    const QString fonts = QCoreApplication::translate("Display", "The fonts of the display");
    CabQuick::AddToAbout(QStringLiteral("B612, Noto Sans"), QString(), QStringLiteral("OFL-1.1"), fonts);
    CabQuick::AddToAbout(QStringLiteral("DejaVu Sans"), QString(), QStringLiteral("Bitstream-Vera"), fonts);
    if (ScreenKeyboard::IsChosen())
        CabQuick::AddToAbout(QStringLiteral("Qt Virtual Keyboard"), QLatin1String(qVersion()),
                             QStringLiteral("GPL-3.0-only"),
                             QCoreApplication::translate("Display", "The keyboard on the screen"));
    return true;
}

bool TDisplaySession::OpenWindow(const tagDisplayOptions& options, QString* error)
{
    Q_INIT_RESOURCE(cabdisplay);
    const tagPage* const page = FindPage(options.page);
    m_Engine = std::make_unique<QQmlApplicationEngine>();
    m_Engine->addImageProvider(QStringLiteral("icon"), new TIconProvider);
    m_Engine->addImageProvider(QStringLiteral("background"), new TBackgroundProvider);
    m_Engine->setInitialProperties({
        {QStringLiteral("width"), options.size.width()},
        {QStringLiteral("height"), options.size.height()},
        {QStringLiteral("page"), QLatin1String(page != nullptr ? page->door : "work")},
        {QStringLiteral("section"), QLatin1String(page != nullptr ? page->section : "")},
        {QStringLiteral("visibility"), options.isFullScreen ? QWindow::FullScreen : QWindow::Windowed},
    });
    QStringList problems;
    QObject::connect(m_Engine.get(), &QQmlEngine::warnings, [&problems](const QList<QQmlError>& errors) {
        for (const QQmlError& each : errors)
            problems.append(each.toString());
    });
    m_Engine->load(QUrl(QStringLiteral("qrc:/cabdisplay/Main.qml")));
    QObject::disconnect(m_Engine.get(), &QQmlEngine::warnings, nullptr, nullptr);
    if (Window() == nullptr)
        *error = QString::fromLatin1("cannot open the pages: %1").arg(problems.join(QLatin1String("; ")));
    return Window() != nullptr;
}

QQuickWindow* TDisplaySession::Window() const
{
    return m_Engine ? qobject_cast<QQuickWindow*>(m_Engine->rootObjects().value(0)) : nullptr;
}
