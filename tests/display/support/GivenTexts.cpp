#include "GivenTexts.h"

#include <QAbstractItemModel>
#include <QMetaProperty>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QSet>
#include <QtQml>

#include <algorithm>

namespace {

struct tagSingleton
{
    const char* module;
    const char* name;
};

constexpr tagSingleton Singletons[] = {
    {"CabSettings", "About"},           {"CabSettings", "Clock"},      {"CabSettings", "Drives"},
    {"CabSettings", "Problems"},        {"CabSettings", "Receiver"},   {"CabSettings", "Restart"},
    {"CabSettings", "ParameterGroups"}, {"CabSettings", "Selections"}, {"CabDisplay", "Work"},
};

/// What Selections.list() is asked for.
constexpr const char* Kinds[] = {"vehicle", "implement", "boundary", "abLine"};

bool HasDigit(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.isDigit(); });
}

void Take(const QVariant& value, QSet<QString>& texts)
{
    switch (static_cast<int>(value.userType())) {
    case QMetaType::QString:
        if (HasDigit(value.toString()))
            texts.insert(value.toString());
        break;
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        for (const QVariant& each : value.toList())
            Take(each, texts);
        break;
    case QMetaType::QVariantMap:
        for (const QVariant& each : value.toMap())
            Take(each, texts);
        break;
    default:
        break;
    }
}

void TakeProperties(const QObject& object, QSet<QString>& texts)
{
    const QMetaObject& type = *object.metaObject();
    for (int index = QObject::staticMetaObject.propertyCount(); index < type.propertyCount(); ++index)
        Take(type.property(index).read(&object), texts);
}

void TakeRows(const QAbstractItemModel& model, QSet<QString>& texts)
{
    const QList<int> roles = model.roleNames().keys();
    for (int row = 0; row < model.rowCount(); ++row) {
        for (const int role : roles)
            Take(model.data(model.index(row, 0), role), texts);
    }
}

void TakeObject(QObject& object, QSet<QString>& texts)
{
    TakeProperties(object, texts);
    if (const auto* model = qobject_cast<const QAbstractItemModel*>(&object))
        TakeRows(*model, texts);
    if (object.inherits("TTransfer")) {
        QVariantList profiles;
        QMetaObject::invokeMethod(&object, "profiles", Q_RETURN_ARG(QVariantList, profiles));
        Take(profiles, texts);
    }
    if (object.inherits("TSelections")) {
        for (const char* const kind : Kinds) {
            QStringList names;
            QMetaObject::invokeMethod(&object, "list", Q_RETURN_ARG(QStringList, names),
                                      Q_ARG(QString, QString::fromLatin1(kind)));
            Take(names, texts);
        }
    }
}

/// The types of the module and the display are those with a name as "TClock"; QML items have their texts from pages.
bool IsOurs(const QObject& object)
{
    const char* const name = object.metaObject()->className();
    return name[0] == 'T' && QChar::fromLatin1(name[1]).isUpper();
}

/// The rows of lists belong to their list as items only, not as objects.
void TakeBelow(const QQuickItem& item, QSet<QString>& texts)
{
    for (QObject* object : item.findChildren<QObject*>()) {
        if (!qobject_cast<QQuickItem*>(object) && IsOurs(*object))
            TakeObject(*object, texts);
    }
    for (const QQuickItem* child : item.childItems())
        TakeBelow(*child, texts);
}

} // namespace

QStringList GivenTexts::All(TOpenDisplay& display)
{
    QSet<QString> texts;
    TakeBelow(display.Content(), texts);
    for (const tagSingleton& singleton : Singletons) {
        auto* const object =
            display.Engine().singletonInstance<QObject*>(qmlTypeId(singleton.module, 1, 0, singleton.name));
        if (!object)
            qFatal("There is no singleton %s.", singleton.name);
        TakeObject(*object, texts);
    }
    QStringList all(texts.begin(), texts.end());
    std::sort(all.begin(), all.end(), [](const QString& one, const QString& other) {
        return one.size() != other.size() ? one.size() > other.size() : one < other;
    });
    return all;
}

QString GivenTexts::Rest(const QString& text, const QStringList& given)
{
    QString rest = text;
    for (const QString& part : given) {
        if (!HasDigit(rest))
            return {};
        if (!rest.contains(part))
            continue;
        const QString pattern = QString::fromLatin1("(?<![0-9])(?<![0-9][.,])%1(?![.,]?[0-9])");
        rest.replace(QRegularExpression(pattern.arg(QRegularExpression::escape(part))), QString(QChar(0x2026)));
    }
    return HasDigit(rest) ? rest : QString();
}
