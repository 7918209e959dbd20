#pragma once

#include "support/TOpenDisplay.h"

#include <QList>
#include <QQuickItem>
#include <QString>

/// The keyboard on the screen as an operator sees it.
namespace ScreenKeys {

/// The keyboard; null while it is hidden.
QQuickItem* Keyboard(QQuickItem& content);

/// All its visible keys.
QList<QQuickItem*> Keys(QQuickItem& content);

/// The key with this label; null when there is none.
QQuickItem* Key(QQuickItem& content, const QString& label);

/// The key of this type of Qt's keyboard, such as "EnterKey"; null when there is none.
QQuickItem* KeyOfType(QQuickItem& content, const char* type);

/// Waits until the keyboard can be typed on: it is loaded while the first pages are shown.
bool Waits(TOpenDisplay& display);

/// Taps the key. False when it is null.
bool Tap(TOpenDisplay& display, const QQuickItem* key);

/// Taps the keys with these labels, one character each. False when one is missing.
bool TapAll(TOpenDisplay& display, const char* labels);

/// Hides the keyboard, or changes its language, by what it has for that: Qt 5 a key of its own, Qt 6 a long press on
/// the key with the gear. False when there is neither.
bool Hide(TOpenDisplay& display);
bool ChangeLanguage(TOpenDisplay& display);

/// The field that is typed in, and its text; null and empty when there is none.
QQuickItem* Field(const TOpenDisplay& display);
QString Typed(const TOpenDisplay& display);

/// The part of the window that the item takes.
QRectF Place(const QQuickItem& item);

} // namespace ScreenKeys
