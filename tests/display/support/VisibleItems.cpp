#include "VisibleItems.h"

#include <QFont>
#include <QMetaProperty>
#include <QQuickWindow>
#include <QRegularExpression>

#include <algorithm>

namespace {

/// Texts are placed at fractions of a pixel.
constexpr double Tolerance = 1;

bool IsText(const QQuickItem& item)
{
    return item.inherits("QQuickText") || item.inherits("QQuickTextInput") || item.inherits("QQuickTextEdit");
}

bool TakesTaps(const QQuickItem& item)
{
    // A shield keeps taps from what lies below it.
    if (item.inherits("QQuickMouseArea"))
        return item.objectName() != QLatin1String("shield");
    const QObjectList& children = item.children();
    return std::any_of(children.begin(), children.end(),
                       [](const QObject* child) { return child->inherits("QQuickTapHandler"); });
}

/// What a screen reader says of an item; empty when it says nothing.
QString AccessibleName(const QQuickItem& item)
{
    const QObjectList& children = item.children();
    const auto attached = std::find_if(children.begin(), children.end(), [](const QObject* child) {
        return child->inherits("QQuickAccessibleAttached");
    });
    return attached == children.end() ? QString() : (*attached)->property("name").toString();
}

template <class Accepts>
void Collect(QQuickItem& item, const Accepts& accepts, QList<QQuickItem*>& found)
{
    if (!item.isVisible() || item.opacity() <= 0)
        return;
    if (accepts(item))
        found.append(&item);
    QList<QQuickItem*> children = item.childItems();
    std::stable_sort(children.begin(), children.end(),
                     [](const QQuickItem* first, const QQuickItem* second) { return first->z() < second->z(); });
    for (QQuickItem* child : children)
        Collect(*child, accepts, found);
}

QRectF InWindow(const QQuickItem& item) { return item.mapRectToScene(QRectF(0, 0, item.width(), item.height())); }

bool Scrolls(const QQuickItem& area)
{
    return area.inherits("QQuickFlickable") && area.property("contentHeight").toDouble() > area.height();
}

} // namespace

QRectF VisibleItems::WholePart(const QQuickItem& item)
{
    QRectF whole = InWindow(item);
    for (const QQuickItem* ancestor = item.parentItem(); ancestor; ancestor = ancestor->parentItem()) {
        if (ancestor->clip())
            whole &= InWindow(*ancestor);
    }
    return whole;
}

QRectF VisibleItems::SeenPart(const QQuickItem& item)
{
    const QRectF whole = WholePart(item);
    return item.window() ? whole & QRectF(QPointF(0, 0), QSizeF(item.window()->size())) : whole;
}

QList<QQuickItem*> VisibleItems::Texts(QQuickItem& root)
{
    QList<QQuickItem*> texts;
    Collect(
        root, [](const QQuickItem& item) { return IsText(item) && !Text(item).isEmpty() && !SeenPart(item).isEmpty(); },
        texts);
    return texts;
}

QList<QQuickItem*> VisibleItems::Targets(QQuickItem& root)
{
    QList<QQuickItem*> targets;
    Collect(
        root, [](const QQuickItem& item) { return item.isEnabled() && TakesTaps(item) && !SeenPart(item).isEmpty(); },
        targets);
    return targets;
}

QString VisibleItems::NameOf(const QQuickItem& target)
{
    for (const QQuickItem* owner = &target; owner; owner = owner->parentItem()) {
        const QString name = AccessibleName(*owner);
        if (!name.isEmpty())
            return name;
        for (const char* property : {"text", "placeholder"}) {
            const QString text = owner->property(property).toString();
            if (!text.isEmpty())
                return text;
        }
    }
    return QString();
}

QQuickItem* VisibleItems::Target(QQuickItem& root, const QString& name)
{
    const QList<QQuickItem*> targets = Targets(root);
    const auto found = std::find_if(targets.rbegin(), targets.rend(),
                                    [&name](const QQuickItem* target) { return NameOf(*target) == name; });
    return found == targets.rend() ? nullptr : *found;
}

QQuickItem* VisibleItems::Named(QQuickItem& root, const QString& name)
{
    if (!root.isVisible())
        return nullptr;
    if (root.objectName() == name)
        return &root;
    for (QQuickItem* const child : root.childItems()) {
        if (QQuickItem* const found = Named(*child, name))
            return found;
    }
    return nullptr;
}

const QQuickItem* VisibleItems::Layer(const QQuickItem& item)
{
    const QQuickItem* layer = &item;
    while (layer->parentItem() && layer->parentItem()->objectName() != QLatin1String("display"))
        layer = layer->parentItem();
    return layer;
}

QString VisibleItems::Text(const QQuickItem& item)
{
    return item.property(item.inherits("QQuickTextInput") ? "displayText" : "text").toString();
}

int VisibleItems::ShownSize(const QQuickItem& text)
{
    // Qt tells what a text has shrunk to in "fontInfo".
    const QVariant shown = text.property("fontInfo");
    const QMetaObject* const type = shown.isValid() ? QMetaType(shown.userType()).metaObject() : nullptr;
    const int place = type ? type->indexOfProperty("pixelSize") : -1;
    return place < 0 ? text.property("font").value<QFont>().pixelSize()
                     : type->property(place).readOnGadget(shown.constData()).toInt();
}

QString VisibleItems::Describe(const QQuickItem& item)
{
    const QRectF place = InWindow(item);
    const QString text = IsText(item) ? Text(item) : NameOf(item);
    return QString::fromLatin1("%1 \"%2\" at %3, %4, size %5 x %6")
        .arg(QLatin1String(item.metaObject()->className()), text)
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
}

QRectF VisibleItems::Letters(const QQuickItem& text)
{
    const double width = text.property("contentWidth").toDouble();
    const double height = text.property("contentHeight").toDouble();
    const int horizontal = text.property("effectiveHorizontalAlignment").toInt();
    const int vertical = text.property("verticalAlignment").toInt();
    double x = text.property("leftPadding").toDouble();
    if (horizontal & Qt::AlignRight)
        x = text.width() - width - text.property("rightPadding").toDouble();
    else if (horizontal & Qt::AlignHCenter)
        x = (text.width() - width) / 2;
    double y = text.property("topPadding").toDouble();
    if (vertical & Qt::AlignBottom)
        y = text.height() - height - text.property("bottomPadding").toDouble();
    else if (vertical & Qt::AlignVCenter)
        y = (text.height() - height) / 2;
    return text.mapRectToScene(QRectF(x, y, width, height));
}

QString VisibleItems::WhatIsCutOff(const QQuickItem& text)
{
    if (text.property("truncated").toBool())
        return QLatin1String("elided");
    const QRectF letters = Letters(text);
    for (const QQuickItem* ancestor = text.parentItem(); ancestor; ancestor = ancestor->parentItem()) {
        if (!ancestor->clip())
            continue;
        QRectF room = InWindow(*ancestor).adjusted(-Tolerance, -Tolerance, Tolerance, Tolerance);
        if (Scrolls(*ancestor)) {
            room.setTop(std::min(room.top(), letters.top()));
            room.setBottom(std::max(room.bottom(), letters.bottom()));
        }
        if (!room.contains(letters))
            return QLatin1String("cut off by what it is in");
    }
    const QRectF window(QPointF(0, 0), QSizeF(text.window()->size()));
    if (!window.adjusted(-Tolerance, -Tolerance, Tolerance, Tolerance).contains(letters))
        return QLatin1String("outside of the window");
    // A text input moves its text within itself.
    if (!text.inherits("QQuickText"))
        return QString();
    // Japanese and Chinese are written without blanks; a line may end after most characters.
    static const QRegularExpression between(QLatin1String("[\\s/.,:-]|[\\p{Han}\\p{Hiragana}\\p{Katakana}]"));
    if (text.property("lineCount").toInt() > 1 && !Text(text).contains(between))
        return QLatin1String("broken within a word");
    const QRectF own = InWindow(text).adjusted(-Tolerance, -Tolerance, Tolerance, Tolerance);
    return letters.left() < own.left() || letters.right() > own.right() ? QLatin1String("wider than its item")
                                                                        : QString();
}
