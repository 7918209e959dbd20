#pragma once

#include "TTemporaryFolder.h"

#include "module/CabQuick.h"
#include "parameters/TParameterCatalogue.h"
#include "stores/TSqliteStore.h"
#include "terminal/DataFolder.h"
#include "terminal/TTerminal.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

/// How long a condition is waited for, in milliseconds. It is seldom needed; a loaded machine is no fault of a test.
inline constexpr int Patience = 30000;

/// A terminal in a folder of its own, and a QML object that imports the module. Tests read and write properties through
/// QML, as a display does.
///
/// @code
/// TQuickTerminal terminal;
/// terminal.Load("Quantity { kind: Quantity.Area }");
/// QTRY_COMPARE(terminal.Get("Clock.source").toString(), QLatin1String("none"));
/// @endcode
class TQuickTerminal
{
public:
    /// @param first values that are stored before the start.
    explicit TQuickTerminal(const QMap<int, QVariant>& first = {})
    {
        QString error;
        m_Store = TSqliteStore::Open(DataFolder::StoreFile(folder.Path()), &error, StorePatience);
        if (!m_Store)
            qFatal("%s", qPrintable(error));
        for (auto value = first.begin(); value != first.end(); ++value)
            m_Store->SetParameter(static_cast<EParamID>(value.key()), value.value(), true);
        m_Terminal = std::make_unique<TTerminal>(*m_Store);
        if (!m_Terminal->Start(folder.Path(), &error, {QLatin1String("2.1.4-r7")}))
            qFatal("%s", qPrintable(error));
        CabQuick::Publish(*m_Store, folder.Path());
        m_Engine = std::make_unique<QQmlEngine>();
        Load("QtObject {}");
    }

    ~TQuickTerminal()
    {
        m_Object.reset();
        m_Engine.reset();
        CabQuick::Withdraw();
        m_Terminal.reset();
    }

    TQuickTerminal(const TQuickTerminal&) = delete;
    TQuickTerminal& operator=(const TQuickTerminal&) = delete;

    /// Makes the object of which Get() and Run() are evaluated; "self" is its id.
    void Load(const QByteArray& body)
    {
        const int brace = static_cast<int>(body.indexOf('{')) + 1;
        const QByteArray text = "import QtQml 2.15\nimport CabSettings 1.0\n" + body.left(brace) +
                                " id: self; function evaluate(text) { return eval(text) } " + body.mid(brace);
        QQmlComponent component(m_Engine.get());
        component.setData(text, QUrl());
        m_Object.reset(component.create());
        if (!m_Object)
            qFatal("%s", qPrintable(component.errorString()));
    }

    QObject* Object() const { return m_Object.get(); }

    /// An object beside it, as in "Parameter { name: 'units.metric' }".
    std::unique_ptr<QObject> Make(const QByteArray& body) const
    {
        QQmlComponent component(m_Engine.get());
        component.setData("import CabSettings 1.0\n" + body, QUrl());
        std::unique_ptr<QObject> object(component.create());
        if (!object)
            qFatal("%s", qPrintable(component.errorString()));
        return object;
    }

    /// The value of a QML expression; invalid, with a failed check, when it has none.
    QVariant Get(const char* expression) const
    {
        QVariant result;
        QMetaObject::invokeMethod(m_Object.get(), "evaluate", Q_RETURN_ARG(QVariant, result),
                                  Q_ARG(QVariant, QVariant(QString::fromUtf8(expression))));
        return result;
    }

    QString Text(const char* expression) const { return Get(expression).toString(); }

    /// The object that an expression names, for a QSignalSpy.
    QObject* Named(const char* expression) const { return Get(expression).value<QObject*>(); }

    TSqliteStore& Store() const { return *m_Store; }

    TTemporaryFolder folder;

private:
    static const int StorePatience = 200; ///< so that a test of a locked store does not take long

    std::unique_ptr<TSqliteStore> m_Store;
    std::unique_ptr<TTerminal> m_Terminal;
    std::unique_ptr<QQmlEngine> m_Engine;
    std::unique_ptr<QObject> m_Object;
};
