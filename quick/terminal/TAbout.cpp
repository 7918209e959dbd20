#include "terminal/TAbout.h"

#include "module/CabQuick.h"
#include "module/SharedObject.h"
#include "support/UsedLibraries.h"
#include "system/TSystemSettingsProxy.h"

#include <QCoreApplication>

namespace {

// The words of the host's table, which has no translations of its own.
[[maybe_unused]] constexpr const char* Uses[] = {
    QT_TRANSLATE_NOOP("About", "Windows, files and connections"),
    QT_TRANSLATE_NOOP("About", "The file of the settings"),
    QT_TRANSLATE_NOOP("About", "Profiles of settings"),
    QT_TRANSLATE_NOOP("About", "Files for support"),
    QT_TRANSLATE_NOOP("About", "Sunrise and sunset"),
    QT_TRANSLATE_NOOP("About", "Boundaries and zones"),
};

QString Translated(const char* text) { return QCoreApplication::translate("About", text); }

} // namespace

TAbout::TAbout(QObject* parent) : QAbstractListModel(parent)
{
    m_Parts.append({Translated(QT_TRANSLATE_NOOP("About", "Software")), TSystemSettingsProxy().GetSoftwareVersion(true),
                    QString(), Translated(QT_TRANSLATE_NOOP("About", "The software of this display"))});
    m_Parts.append({QLatin1String("cabsettings"), QLatin1String(CABSETTINGS_VERSION), QLatin1String("MIT"),
                    Translated(QT_TRANSLATE_NOOP("About", "Settings, units and logs"))});
    for (const tagUsedLibrary& library : UsedLibraries())
        m_Parts.append(
            {QLatin1String(library.name), library.version, QLatin1String(library.licence), Translated(library.use)});
}

void TAbout::Add(const tagPart& part)
{
    beginInsertRows(QModelIndex(), Count(), Count());
    m_Parts.append(part);
    endInsertRows();
    emit countChanged();
}

int TAbout::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Count(); }

QVariant TAbout::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= Count())
        return QVariant();
    const tagPart& part = m_Parts.at(index.row());
    switch (role) {
    case ROLE_NAME:
        return part.name;
    case ROLE_VERSION:
        return part.version;
    case ROLE_LICENCE:
        return part.licence;
    case ROLE_TEXT:
        return part.text;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> TAbout::roleNames() const
{
    return {{ROLE_NAME, "name"}, {ROLE_VERSION, "version"}, {ROLE_LICENCE, "licence"}, {ROLE_TEXT, "text"}};
}

void CabQuick::AddToAbout(const QString& name, const QString& version, const QString& licence, const QString& text)
{
    SharedObject<TAbout>()->Add({name, version, licence, text});
}
