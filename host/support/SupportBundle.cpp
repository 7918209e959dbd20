#include "support/SupportBundle.h"

#include "parameters/TParameterCatalogue.h"
#include "stores/TMemoryStore.h"
#include "support/SupportParts.h"
#include "support/TZipFile.h"

#include <QDir>

namespace {

const int LongestLine = 0x10000;
const QLatin1Char Dot('.');

/// The parameters with blanked names.
void CopyBlanked(const QMap<int, QVariant>& values, TBlanker* blanker, TParameterStore* copy)
{
    for (auto value = values.cbegin(); value != values.cend(); ++value) {
        const tagParameter* const known = TParameterCatalogue::Find(value.key());
        QVariant blanked = value.value();
        if (known && known->mostBytes > 0)
            blanked = blanker->Name(known->name.section(Dot, 1), blanked.toString());
        else if (blanked.userType() == QMetaType::QString)
            blanked = blanker->Text(blanked.toString());
        copy->SetParameter(static_cast<EParamID>(value.key()), blanked, false);
    }
}

/// Cuts a member into lines and writes each as the bundle may hold it.
class TMemberWriter
{
public:
    TMemberWriter(TZipFile& zip, ESupportLines lines, TBlanker* blanker)
        : m_Zip(zip), m_Lines(lines), m_Blanker(lines == SUPPORT_LINES_DONE ? nullptr : blanker)
    {}

    bool Take(const QByteArray& piece)
    {
        if (!m_Blanker)
            return m_Zip.Write(piece);
        m_Rest += piece;
        int begin = 0;
        for (int end = 0; (end = static_cast<int>(m_Rest.indexOf('\n', begin))) >= 0; begin = end + 1) {
            if (!m_Zip.Write(Blanked(m_Rest.mid(begin, end - begin)) + '\n'))
                return false;
        }
        m_Rest.remove(0, begin);
        m_IsTooLong = m_IsTooLong || m_Rest.size() > LongestLine;
        if (m_IsTooLong)
            m_Rest.clear(); // a name could be cut in two by writing what is there
        return true;
    }

    bool Finish() { return m_Rest.isEmpty() && !m_IsTooLong ? true : m_Zip.Write(Blanked(m_Rest)); }

private:
    QByteArray Blanked(QByteArray line)
    {
        if (m_IsTooLong) {
            m_IsTooLong = false;
            return "(a line that is too long)";
        }
        const bool hasReturn = line.endsWith('\r');
        line.chop(hasReturn ? 1 : 0);
        const QByteArray blanked = m_Lines == SUPPORT_LINES_NMEA ? TBlanker::NmeaLine(line) : m_Blanker->Line(line);
        return hasReturn ? blanked + '\r' : blanked;
    }

    TZipFile& m_Zip;
    const ESupportLines m_Lines;
    TBlanker* const m_Blanker;
    QByteArray m_Rest;
    bool m_IsTooLong = false;
};

} // namespace

bool WriteSupportBundle(TSqliteStore& store, const QString& path, const tagSupportRequest& request,
                        const TSupportProgress& progress, tagSupportBundle* bundle, QString* error)
{
    *bundle = {};
    const tagSupportRequest clean = {QDir(request.dataFolder).absolutePath(), request.softwareVersion,
                                     request.isAnonymous};
    TBlanker blanker;
    TMemoryStore blanked;
    if (request.isAnonymous) {
        if (!CollectNames(store, clean, &blanker, error))
            return false;
        CopyBlanked(store.Values(), &blanker, &blanked);
    }
    const tagSupportSource source = {request.isAnonymous ? static_cast<TParameterStore&>(blanked) : store, store, clean,
                                     request.isAnonymous ? &blanker : nullptr, &bundle->problems};
    TZipFile zip(path);
    const QList<tagSupportMember> members = SupportMembers();
    for (const tagSupportMember& member : members) {
        if (progress)
            progress(member.name, static_cast<int>(bundle->members.size()), static_cast<int>(members.size()));
        TMemberWriter writer(zip, member.lines, source.blanker);
        if (!zip.Begin(member.name))
            break;
        member.write(source, [&writer](const QByteArray& piece) { return writer.Take(piece); });
        if (!writer.Finish())
            break;
        bundle->members.append(member.name);
    }
    if (zip.Finish())
        return true;
    *error = zip.Reason();
    return false;
}
