#include "profiles/ProfileFile.h"

#include "diagnostics/UserLogEntries.h"
#include "platform/RegularFile.h"
#include "platform/TDescriptor.h"
#include "platform/Uninterrupted.h"
#include "stores/DurableFiles.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <json/reader.h>
#include <json/value.h>
#include <json/writer.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <initializer_list>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace ProfileFile;

const char* const Product = "cabsettings profile";
const char* const HashField = "sha256";
const int MostProblems = 20;
const int MostNesting = 16;

QString Utf8(const char* text) { return QString::fromUtf8(text); }

QByteArray Counted(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return QByteArray::number(bytes.size()) + ':' + bytes + ',';
}

/// @p text as a JSON string.
QByteArray Quoted(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

QByteArray ValueText(EKind kind, const std::optional<QString>& text)
{
    if (!text)
        return "null";
    return kind == KIND_TEXT ? Quoted(*text) : text->toUtf8();
}

QByteArray RowText(const tagRow& row)
{
    return "{\"number\": " + QByteArray::number(row.number) + ", \"name\": " + Quoted(row.name) +
           ", \"type\": " + Quoted(row.type) + ", \"value\": " + ValueText(row.kind, row.value) +
           ", \"base\": " + ValueText(row.baseKind, row.base) + '}';
}

// Tells for every value of a text on which line it begins.
class TLines
{
public:
    explicit TLines(const QByteArray& text)
    {
        for (int at = 0; at < text.size(); ++at)
            if (text.at(at) == '\n')
                m_Ends.append(at);
    }

    int Of(const Json::Value& value) const
    {
        const auto end = std::lower_bound(m_Ends.begin(), m_Ends.end(), static_cast<int>(value.getOffsetStart()));
        return static_cast<int>(end - m_Ends.begin()) + 1;
    }

private:
    QList<int> m_Ends;
};

QString TextOf(const Json::Value& value)
{
    if (value.isNull())
        return QString();
    if (!value.isString()) {
        Json::StreamWriterBuilder builder;
        builder["indentation"] = "";
        return QString::fromStdString(Json::writeString(builder, value));
    }
    const char* begin = nullptr;
    const char* end = nullptr;
    value.getString(&begin, &end);
    return QString::fromUtf8(begin, static_cast<int>(end - begin));
}

std::optional<QString> BaseOf(const Json::Value& parameter)
{
    const Json::Value& base = parameter["base"];
    return base.isNull() ? std::nullopt : std::optional<QString>(TextOf(base));
}

EKind KindOf(const Json::Value& value)
{
    if (value.isString())
        return KIND_TEXT;
    if (value.isBool())
        return KIND_BOOL;
    return value.isInt() ? KIND_NUMBER : KIND_OTHER;
}

/// What a field of an object must be.
struct tagFieldType
{
    bool (Json::Value::*is)() const;
    const char* words;
};

constexpr tagFieldType Object = {&Json::Value::isObject, "an object"};
constexpr tagFieldType Array = {&Json::Value::isArray, "an array"};
constexpr tagFieldType String = {&Json::Value::isString, "a text"};
constexpr tagFieldType Int = {&Json::Value::isInt, "a whole number"};

// Takes a profile apart.
class TParts
{
public:
    TParts(const QByteArray& text, TProblems* problems) : m_Lines(text), m_Problems(problems) {}

    std::optional<tagContent> Take(const Json::Value& root)
    {
        if (!root.isMember("product") || TextOf(root["product"]) != Utf8(Product)) {
            m_Problems->Add(
                m_Lines.Of(root),
                QString::fromLatin1("not a profile; expected the product \"%1\"%2").arg(Utf8(Product), Found(root)));
            return std::nullopt;
        }
        const Json::Value& format = Field(root, "format", Int);
        if (format.isInt() && format.asInt() < 1)
            m_Problems->Add(m_Lines.Of(format), QLatin1String("invalid format; expected 1"));
        m_Content.format = format.isInt() ? format.asInt() : 0;
        TakeOrigin(Field(root, "origin", Object));
        for (const Json::Value& group : Field(root, "groups", Array))
            m_Content.groups.append(TextOf(group));
        for (const Json::Value& parameter : Field(root, "parameters", Array))
            TakeParameter(parameter);
        m_Content.hash = TextOf(Field(root, HashField, String));
        NoteUnknown(root, {"product", "format", "origin", "groups", "parameters", HashField}, QString());
        return m_Content;
    }

private:
    static QString Found(const Json::Value& root)
    {
        return root.isMember("product") ? QString::fromLatin1(", found %1").arg(TextOf(root["product"]).left(60))
                                        : QString();
    }

    const Json::Value& Field(const Json::Value& object, const char* name, const tagFieldType& type)
    {
        const Json::Value& field = object[name];
        if ((field.*type.is)())
            return field;
        if (object.isMember(name))
            m_Problems->Add(
                m_Lines.Of(field),
                QString::fromLatin1("invalid \"%1\"; expected %2").arg(QLatin1String(name), QLatin1String(type.words)));
        else
            m_Problems->Add(m_Lines.Of(object), QString::fromLatin1("missing \"%1\"").arg(QLatin1String(name)));
        return Json::Value::nullSingleton();
    }

    void TakeOrigin(const Json::Value& origin)
    {
        if (!origin.isObject())
            return;
        m_Content.origin = {TextOf(Field(origin, "terminal", String)), TextOf(Field(origin, "software", String)),
                            TextOf(Field(origin, "time", String)), TextOf(Field(origin, "timeSource", String))};
        NoteUnknown(origin, {"terminal", "software", "time", "timeSource"}, QLatin1String("origin"));
    }

    void TakeParameter(const Json::Value& parameter)
    {
        if (!parameter.isObject()) {
            m_Problems->Add(m_Lines.Of(parameter), QLatin1String("invalid parameter; expected an object"));
            return;
        }
        const Json::Value& number = Field(parameter, "number", Int);
        const Json::Value& name = Field(parameter, "name", String);
        const Json::Value& type = Field(parameter, "type", String);
        if (!parameter.isMember("value"))
            m_Problems->Add(m_Lines.Of(parameter), QLatin1String("missing \"value\""));
        if (!number.isInt() || !name.isString() || !type.isString() || !parameter.isMember("value"))
            return;
        const Json::Value& value = parameter["value"];
        m_Content.rows.append({number.asInt(), TextOf(name), TextOf(type), TextOf(value), BaseOf(parameter),
                               KindOf(value), KindOf(parameter["base"]), m_Lines.Of(parameter)});
        NoteUnknown(parameter, {"number", "name", "type", "value", "base"}, TextOf(name));
    }

    void NoteUnknown(const Json::Value& object, std::initializer_list<const char*> known, const QString& owner)
    {
        for (const std::string& member : object.getMemberNames()) {
            if (std::find(known.begin(), known.end(), member) == known.end())
                m_Content.ignored.append(QString::fromLatin1("line %1: the field \"%2\"%3")
                                             .arg(m_Lines.Of(object[member]))
                                             .arg(QString::fromStdString(member).left(60),
                                                  owner.isEmpty() ? QString() : QLatin1String(" of ") + owner));
        }
    }

    const TLines m_Lines;
    TProblems* const m_Problems;
    tagContent m_Content = {};
};

// Reads a regular file of limited size, and nothing of any other.
bool ReadAll(const QString& path, QByteArray* text, TProblems* problems)
{
    const TDescriptor file(OpenRegularFile(path.toUtf8()));
    struct stat status = {};
    if (!file.IsOpen() && errno == EINVAL) {
        problems->Add(0, QLatin1String("not a regular file"));
    } else if (!file.IsOpen() || fstat(file.Get(), &status) != 0) {
        problems->Add(0, QLatin1String("cannot be read: ") + DurableFiles::SystemText());
    } else if (status.st_size > TProfile::MostBytes) {
        problems->Add(0, QString::fromLatin1("not a profile: it has %1 bytes, a profile has at most %2")
                             .arg(status.st_size)
                             .arg(TProfile::MostBytes));
    } else {
        text->resize(static_cast<int>(status.st_size));
        const ssize_t length =
            Uninterrupted([&] { return read(file.Get(), text->data(), static_cast<std::size_t>(text->size())); });
        if (length < 0)
            problems->Add(0, QLatin1String("cannot be read: ") + DurableFiles::SystemText());
        else
            text->truncate(static_cast<int>(length));
    }
    return problems->IsEmpty();
}

// Where the first comment begins; -1 when there is none. The parser lets some comments through in its strict mode too.
int FirstComment(const QByteArray& text)
{
    bool isInString = false;
    for (int at = 0; at + 1 < text.size(); ++at) {
        const char next = text.at(at + 1);
        if (isInString && text.at(at) == '\\')
            ++at; // the next character does not end the string
        else if (text.at(at) == '"')
            isInString = !isInString;
        else if (!isInString && text.at(at) == '/' && (next == '/' || next == '*'))
            return at;
    }
    return -1;
}

/// The first of the parser's messages, which has the form "* Line 3, Column 5\n  Words\n".
void AddSyntaxProblem(const QByteArray& text, const QString& messages, TProblems* problems)
{
    static const QRegularExpression form(QLatin1String("\\* Line (\\d+), Column \\d+\\n  ([^\\n]*)"));
    const QRegularExpressionMatch match = form.match(messages);
    const QByteArray trimmed = text.trimmed();
    const int line = match.captured(1).toInt();
    if (trimmed.startsWith('{') && !trimmed.endsWith('}'))
        problems->Add(static_cast<int>(trimmed.count('\n')) + 1,
                      QLatin1String("cut off: the closing brace is missing"));
    else
        problems->Add(line, QLatin1String("not valid JSON: ") +
                                (match.hasMatch() ? match.captured(2) : messages.simplified()));
}

bool Parse(const QByteArray& text, Json::Value* root, TProblems* problems)
{
    const int comment = FirstComment(text);
    if (comment >= 0) {
        problems->Add(static_cast<int>(text.left(comment).count('\n')) + 1,
                      QLatin1String("not valid JSON: a comment; expected JSON without // and /* */"));
        return false;
    }
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    builder["stackLimit"] = MostNesting;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    std::string messages;
    try {
        if (reader->parse(text.constData(), text.constData() + text.size(), root, &messages))
            return true;
    } catch (const std::exception&) {
        messages = "it is nested too deeply";
    }
    AddSyntaxProblem(text, QString::fromStdString(messages), problems);
    return false;
}

} // namespace

void ProfileFile::TProblems::Add(int line, const QString& text)
{
    // What is cited from the file could bring a line of its own, which looks like another problem.
    const QString oneLine = WithoutLineBreaks(text);
    if (m_Lines.size() == MostProblems)
        ++m_More;
    else if (line > 0)
        m_Lines.append(QString::fromLatin1("%1:%2: %3").arg(m_Path, QString::number(line), oneLine));
    else
        m_Lines.append(QString::fromLatin1("%1: %2").arg(m_Path, oneLine));
}

QStringList ProfileFile::TProblems::Lines() const
{
    return m_More == 0 ? m_Lines : m_Lines + QStringList(QString::fromLatin1("%1: %2 more").arg(m_Path).arg(m_More));
}

QString ProfileFile::Hash(const tagContent& content)
{
    QByteArray canonical;
    for (const QString& text :
         {Utf8(Product), QString::number(content.format), content.origin.terminal, content.origin.software,
          content.origin.time, content.origin.timeSource, content.groups.join(QLatin1Char(','))})
        canonical += Counted(text);
    for (const tagRow& row : content.rows)
        for (const QString& text :
             {QString::number(row.number), row.name, row.type, row.value, row.base.value_or(QString())})
            canonical += Counted(text);
    return QString::fromLatin1(QCryptographicHash::hash(canonical, QCryptographicHash::Sha256).toHex());
}

QByteArray ProfileFile::Text(const tagContent& content)
{
    const tagProfileOrigin& origin = content.origin;
    QByteArray groups;
    for (const QString& group : content.groups)
        groups += (groups.isEmpty() ? "" : ", ") + Quoted(group);
    QByteArray rows;
    for (const tagRow& row : content.rows)
        rows += (rows.isEmpty() ? "\n    " : ",\n    ") + RowText(row);
    return QByteArray("{\n  \"product\": ") + Quoted(Utf8(Product)) +
           ",\n  \"format\": " + QByteArray::number(content.format) +
           ",\n  \"origin\": {\n    \"terminal\": " + Quoted(origin.terminal) +
           ",\n    \"software\": " + Quoted(origin.software) + ",\n    \"time\": " + Quoted(origin.time) +
           ",\n    \"timeSource\": " + Quoted(origin.timeSource) + "\n  },\n  \"groups\": [" + groups +
           "],\n  \"parameters\": [" + rows + "\n  ],\n  \"" + HashField + "\": " + Quoted(Hash(content)) + "\n}\n";
}

bool ProfileFile::Write(const QString& path, const QByteArray& text, QString* reason)
{
    return DurableFiles::Write(path, text, reason);
}

std::optional<ProfileFile::tagContent> ProfileFile::Read(const QString& path, TProblems* problems)
{
    QByteArray text;
    if (!ReadAll(path, &text, problems))
        return std::nullopt;
    const char byteOrderMark[] = "\xef\xbb\xbf";
    if (text.startsWith(byteOrderMark))
        text.remove(0, static_cast<int>(qstrlen(byteOrderMark)));
    if (text.trimmed().isEmpty()) {
        problems->Add(0, QLatin1String("the file is empty"));
        return std::nullopt;
    }
    if (QString::fromUtf8(text).toUtf8() != text) {
        problems->Add(0, QLatin1String("not a profile: it is not text in UTF-8"));
        return std::nullopt;
    }
    Json::Value root;
    if (!Parse(text, &root, problems))
        return std::nullopt;
    if (!root.isObject()) {
        problems->Add(1, QLatin1String("not a profile; expected an object"));
        return std::nullopt;
    }
    return TParts(text, problems).Take(root);
}
