#include "support/TBlanker.h"

#include "nmea/NmeaChecksum.h"
#include "parameters/TParameterCatalogue.h"
#include "system/TSystemSettings.h"
#include "terminal/DataFolder.h"

#include <QSet>
#include <QStringList>

#include <algorithm>

namespace {

const int ShortName = 2; ///< such a name is replaced only where it stands alone
const QLatin1Char Comma(',');
const QLatin1Char Separator('/');
const QLatin1Char Dot('.');

/// A sentence that is kept, and the fields that are emptied: those of the position and the heights. The talker, the
/// first two letters, is any.
struct tagSentence
{
    const char* type;
    int first; ///< the first field to empty, 1 behind the type; 0: none
    int last;
};

constexpr tagSentence Sentences[] = {
    {"GGA", 2, 5},  {"GGA", 9, 9},  {"GGA", 11, 11}, {"RMC", 3, 6},  {"GLL", 1, 4},
    {"GNS", 2, 5},  {"GNS", 9, 10}, {"ZDA", 0, -1},  {"VTG", 0, -1}, {"GSA", 0, -1},
    {"GSV", 0, -1}, {"GST", 0, -1}, {"HDT", 0, -1},  {"ROT", 0, -1}, {"TXT", 0, -1},
};

const int TypeLength = 3;
const int AddressLength = 5;

/// Decimal degrees, and degrees with minutes or seconds, as people, receivers and this host write them. In the user log
/// the signs of minutes and seconds may have become question marks.
const QRegularExpression& Position()
{
    static const QRegularExpression position(
        QString::fromUtf8("[-+]?\\d+[.,]\\d{4,}|[-+]?\\d{1,3}\\s*°\\s*\\d{1,2}([.,]\\d+)?\\s*['′?]?"
                          "(\\s*\\d{1,2}([.,]\\d+)?\\s*(\"|″|''|\\?))?"));
    return position;
}

const QString PositionWord = QLatin1String("(position)");

/// A name, also in the other ways in which its accented letters can be written, and as the user log writes them, which
/// has question marks for letters that are not in Latin-1.
QRegularExpression Pattern(const QString& name)
{
    QStringList forms = {name, name.normalized(QString::NormalizationForm_C),
                         name.normalized(QString::NormalizationForm_D)};
    for (int i = 0; i < 3; ++i)
        forms.append(QString::fromLatin1(forms.at(i).toLatin1()));
    forms.removeDuplicates();
    for (QString& form : forms)
        form = QRegularExpression::escape(form);
    const QString any = QLatin1String("(?:") + forms.join(QLatin1Char('|')) + QLatin1Char(')');
    const QString alone = QLatin1String("(?<![\\p{L}\\p{N}])") + any + QLatin1String("(?![\\p{L}\\p{N}])");
    return QRegularExpression(name.size() > ShortName ? any : alone,
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

bool IsBuiltIn(const QString& name)
{
    return name == TSystemSettings::DefaultVehicleProfile || name == TSystemSettings::DefaultSteeringProfile ||
           name == TSystemSettings::DefaultSprayerProfile || name == TSystemSettings::DefaultImplementProfile;
}

/// The names of folders that the library gives.
const QSet<QString>& KnownFolders()
{
    static const QSet<QString> known = [] {
        QSet<QString> names = {QLatin1String("internal"), QLatin1String("usb")};
        const QStringList folders = DataFolder::Folders();
        for (const QString& folder : folders) {
            const QStringList parts = folder.split(Separator);
            for (const QString& part : parts)
                names.insert(part);
        }
        return names;
    }();
    return known;
}

/// The names of files that the library gives: the store with what is beside it, the logs, and the files that have one
/// name in every folder.
bool IsKnownFile(const QString& name)
{
    static const QRegularExpression known(
        QLatin1String("^(settings\\.db[-.a-z0-9]*|(User|NMEA)\\d+\\.csv|flagpoints\\.ini|areacounters\\.ini)$"));
    return known.match(name).hasMatch();
}

} // namespace

void TBlanker::Add(const QString& kind, const QString& name)
{
    if (name.isEmpty() || IsBuiltIn(name) || m_Words.contains(name))
        return;
    const QString word = QString::fromLatin1("%1-%2").arg(kind).arg(++m_Counts[kind]);
    m_Words.insert(name, word);
    const auto isShorter = [&name](const tagName& other) { return other.name.size() < name.size(); };
    m_Longest.insert(std::find_if(m_Longest.begin(), m_Longest.end(), isShorter), {name, word, Pattern(name)});
}

QString TBlanker::Name(const QString& kind, const QString& name)
{
    Add(kind, name);
    return m_Words.value(name, name);
}

QString TBlanker::Text(QString text) const
{
    for (const tagName& known : m_Longest)
        text.replace(known.pattern, known.word);
    return text.replace(Position(), PositionWord);
}

void TBlanker::AddFromUserLog(const QString& line)
{
    // time, component, type, parameter, old value, new value
    const QStringList fields = line.split(Comma);
    const tagParameter* const parameter =
        fields.value(2) == QLatin1String("Param") ? TParameterCatalogue::Find(fields.value(3)) : nullptr;
    if (!parameter || parameter->mostBytes == 0)
        return;
    for (int i = 4; i < fields.size(); ++i)
        Add(parameter->name.section(Dot, 1), fields.at(i));
}

QByteArray TBlanker::Line(const QByteArray& line) const
{
    const QString text = QString::fromUtf8(line);
    return text.contains(QChar::ReplacementCharacter) ? Text(QString::fromLatin1(line)).toLatin1()
                                                      : Text(text).toUtf8();
}

QByteArray TBlanker::NmeaLine(const QByteArray& line)
{
    if (CheckNmeaLine(line) != NMEA_RIGHT_CHECKSUM)
        return QByteArray("(") + QByteArray::number(line.size()) + " bytes that are not a whole sentence)";
    const int end = static_cast<int>(line.lastIndexOf('*'));
    QList<QByteArray> fields = line.mid(1, end - 1).split(',');
    const QByteArray type = fields.first().size() == AddressLength ? fields.first().right(TypeLength) : QByteArray();
    bool isKnown = false;
    for (const tagSentence& sentence : Sentences) {
        if (type != sentence.type)
            continue;
        isKnown = true;
        for (int i = sentence.first; i > 0 && i <= sentence.last && i < fields.size(); ++i)
            fields[i].clear();
    }
    const QByteArray body = isKnown ? fields.join(',') : fields.first() + ",";
    return line.left(1) + body + NmeaChecksum(body);
}

QString TBlanker::Path(const QString& path, bool isFolder)
{
    QStringList parts = path.split(Separator);
    for (int i = 0; i < parts.size(); ++i) {
        QString& part = parts[i];
        const bool isFile = !isFolder && i + 1 == parts.size();
        if (isFile ? IsKnownFile(part) : KnownFolders().contains(part))
            continue;
        const int dot = isFile ? static_cast<int>(part.lastIndexOf(Dot)) : -1;
        const QString stem = dot > 0 ? part.left(dot) : part;
        const QString blanked = Text(stem);
        part = blanked != stem ? blanked : Name(QLatin1String(isFile ? "file" : "item"), stem);
        // An extension may be part of a name.
        if (dot > 0)
            part += Text(path.mid(path.lastIndexOf(Dot)));
    }
    return parts.join(Separator);
}
