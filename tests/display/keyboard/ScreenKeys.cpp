#include "ScreenKeys.h"

#include <QtTest>

#include <algorithm>

namespace {

bool IsKey(const QQuickItem& item)
{
    return item.property("displayText").isValid() && item.property("noKeyEvent").isValid();
}

void CollectKeys(QQuickItem& item, QList<QQuickItem*>& keys)
{
    if (!item.isVisible())
        return;
    // A row is filled up by keys that do nothing.
    if (IsKey(item) && item.isEnabled() && !QByteArray(item.metaObject()->className()).startsWith("FillerKey"))
        keys.append(&item);
    for (QQuickItem* child : item.childItems())
        CollectKeys(*child, keys);
}

template <class Accepts>
QQuickItem* Find(QQuickItem& content, const Accepts& accepts)
{
    const QList<QQuickItem*> keys = ScreenKeys::Keys(content);
    const auto found = std::find_if(keys.begin(), keys.end(), accepts);
    return found == keys.end() ? nullptr : *found;
}

/// The list of what the keyboard can do, in the order of Qt 6; null while it is closed.
QQuickItem* Functions(QQuickItem& item)
{
    if (!item.isVisible())
        return nullptr;
    if (QByteArray(item.metaObject()->className()).startsWith("FunctionPopupList"))
        return item.property("active").toBool() ? item.property("listView").value<QQuickItem*>() : nullptr;
    for (QQuickItem* child : item.childItems()) {
        if (QQuickItem* const found = Functions(*child))
            return found;
    }
    return nullptr;
}

bool ChooseFunction(TOpenDisplay& display, int index)
{
    const QChar gear(0x2699);
    const QQuickItem* const key = Find(
        display.Content(), [gear](const QQuickItem* each) { return each->property("smallText") == QString(gear); });
    if (key == nullptr)
        return false;
    QWindow* const window = &display.Window();
    const QPoint place = ScreenKeys::Place(*key).center().toPoint();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
    const bool isOpen = QTest::qWaitFor([&display] { return Functions(display.Content()) != nullptr; });
    QQuickItem* const list = Functions(display.Content());
    const int count = list != nullptr ? list->property("count").toInt() : 0;
    QPoint chosen = place;
    if (isOpen && index < count) {
        const QRectF whole = ScreenKeys::Place(*list);
        chosen = QPointF(whole.left() + whole.width() * (index + 0.5) / count, whole.center().y()).toPoint();
        QTest::mouseMove(window, chosen);
    }
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, chosen);
    return isOpen && index < count;
}

} // namespace

QQuickItem* ScreenKeys::Keyboard(QQuickItem& content)
{
    if (!content.isVisible())
        return nullptr;
    if (content.objectName() == QLatin1String("keyboard") && content.property("active").toBool())
        return &content;
    for (QQuickItem* child : content.childItems()) {
        if (QQuickItem* const found = Keyboard(*child))
            return found;
    }
    return nullptr;
}

QList<QQuickItem*> ScreenKeys::Keys(QQuickItem& content)
{
    QList<QQuickItem*> keys;
    if (QQuickItem* const keyboard = Keyboard(content))
        CollectKeys(*keyboard, keys);
    return keys;
}

QQuickItem* ScreenKeys::Key(QQuickItem& content, const QString& label)
{
    return Find(content, [&label](const QQuickItem* key) { return key->property("displayText") == label; });
}

QQuickItem* ScreenKeys::KeyOfType(QQuickItem& content, const char* type)
{
    return Find(content,
                [type](const QQuickItem* key) { return QByteArray(key->metaObject()->className()).startsWith(type); });
}

QRectF ScreenKeys::Place(const QQuickItem& item)
{
    return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
}

bool ScreenKeys::Waits(TOpenDisplay& display)
{
    return QTest::qWaitFor([&display] { return !Keys(display.Content()).isEmpty(); });
}

bool ScreenKeys::Tap(TOpenDisplay& display, const QQuickItem* key)
{
    if (key == nullptr)
        return false;
    display.Tap(Place(*key).center());
    return true;
}

bool ScreenKeys::TapAll(TOpenDisplay& display, const char* labels)
{
    for (const char* label = labels; *label != '\0'; ++label) {
        if (!Tap(display, Key(display.Content(), QString(QLatin1Char(*label)))))
            return false;
    }
    return true;
}

bool ScreenKeys::Hide(TOpenDisplay& display)
{
    const QQuickItem* const key = KeyOfType(display.Content(), "HideKeyboardKey");
    return key != nullptr ? Tap(display, key) : ChooseFunction(display, 0);
}

bool ScreenKeys::ChangeLanguage(TOpenDisplay& display)
{
    const QQuickItem* const key = KeyOfType(display.Content(), "ChangeLanguageKey");
    return key != nullptr ? Tap(display, key) : ChooseFunction(display, 1);
}

QQuickItem* ScreenKeys::Field(const TOpenDisplay& display)
{
    QQuickItem* const item = display.Window().activeFocusItem();
    return item != nullptr && item->inherits("QQuickTextInput") ? item : nullptr;
}

QString ScreenKeys::Typed(const TOpenDisplay& display)
{
    const QQuickItem* const field = Field(display);
    return field != nullptr ? field->property("text").toString() : QString();
}
