#pragma once

#include <QObject>
#include <QStringList>

/// What QML asks of the keyboard on the screen. A singleton.
///
///     Loader { active: ScreenKeyboard.isChosen; source: "ScreenKeyboard.qml" }
class TScreenKeyboard : public QObject
{
    Q_OBJECT

    /// Whether texts are typed with it.
    Q_PROPERTY(bool isChosen READ IsChosen CONSTANT)

public:
    using QObject::QObject;

    static void Register(const char* module, int major, int minor);

    bool IsChosen() const;

    /// ScreenKeyboard::LocalesFor() for the language of the display.
    Q_INVOKABLE QStringList locales(const QStringList& available) const;
};
