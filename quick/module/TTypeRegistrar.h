#pragma once

#include <QQmlEngine>

/// Makes the classes of the module known to QML. Each room has one function that registers its own:
///
/// @code
/// void RegisterSettingsTypes(const TTypeRegistrar& types)
/// {
///     types.Add<TParameter>("Parameter");
///     types.AddSingleton<TRestart>("Restart");
/// }
/// @endcode
class TTypeRegistrar
{
public:
    /// @param isPublished false makes every type unavailable: QML that uses one fails with a message that says why.
    TTypeRegistrar(const char* uri, bool isPublished) : m_Uri(uri), m_IsPublished(isPublished) {}

    /// A type of which QML makes objects. It is constructed without arguments.
    template <class Type>
    void Add(const char* name) const
    {
        if (m_IsPublished)
            qmlRegisterType<Type>(m_Uri, 1, 0, name);
        else
            AddUnavailable(name);
    }

    /// An object of which each engine makes its own, and destroys it. It is constructed without arguments.
    template <class Type>
    void AddSingleton(const char* name) const
    {
        const auto make = [](QQmlEngine*, QJSEngine*) -> QObject* { return new Type; };
        if (m_IsPublished)
            qmlRegisterSingletonType<Type>(m_Uri, 1, 0, name, make);
        else
            AddUnavailable(name);
    }

    /// An object that all engines share. QML does not destroy it.
    template <class Type>
    void AddShared(const char* name, Type* (*instance)()) const
    {
        const auto find = [instance](QQmlEngine*, QJSEngine*) -> QObject* {
            QQmlEngine::setObjectOwnership(instance(), QQmlEngine::CppOwnership);
            return instance();
        };
        if (m_IsPublished)
            qmlRegisterSingletonType<Type>(m_Uri, 1, 0, name, find);
        else
            AddUnavailable(name);
    }

private:
    void AddUnavailable(const char* name) const;

    const char* m_Uri;
    bool m_IsPublished;
};
