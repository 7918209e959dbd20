// A display of one page: starts a terminal in the folder named on the command line, and shows Main.qml on it.

#include <QDir>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <memory>

#include "module/CabQuick.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QString folder = QDir(application.arguments().value(1, QLatin1String("own-display-data"))).absolutePath();
    QDir().mkpath(folder);
    QString error;
    const auto store = TSqliteStore::Open(DataFolder::StoreFile(folder), &error);
    if (!store)
        qFatal("%s", qPrintable(error));
    TTerminal terminal(*store); // declared after the store: it closes the logs while the store is still there
    if (!terminal.Start(folder, &error))
        qFatal("%s", qPrintable(error));
    CabQuick::Publish(*store, folder);
    auto engine = std::make_unique<QQmlApplicationEngine>(QUrl(QLatin1String("qrc:/Main.qml")));
    const int status = engine->rootObjects().isEmpty() ? 1 : application.exec();
    engine.reset();
    CabQuick::Withdraw(); // after the engine, before the terminal
    return status;
}
