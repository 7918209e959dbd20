#include "console/units/CsvColumn.h"

namespace {

const char Separator = ',';
const char Quote = '"';

} // namespace

QByteArray tagCsvLine::Text() const
{
    QByteArray text;
    for (int i = 0; i < fields.size(); ++i) {
        if (i > 0)
            text += Separator;
        text += fields.at(i);
    }
    return text + ending;
}

bool ReadCsvLine(const QByteArray& line, tagCsvLine* read)
{
    int length = static_cast<int>(line.size());
    if (length > 0 && line.at(length - 1) == '\n')
        --length;
    if (length > 0 && line.at(length - 1) == '\r')
        --length;
    read->ending = line.mid(length);
    read->fields.clear();

    bool isQuoted = false;
    int start = 0;
    for (int i = 0; i < length; ++i) {
        const char c = line.at(i);
        if (c == Quote)
            isQuoted = !isQuoted; // a doubled quote ends and begins
        if (c == Separator && !isQuoted) {
            read->fields.append(line.mid(start, i - start));
            start = i + 1;
        }
    }
    read->fields.append(line.mid(start, length - start));
    return !isQuoted;
}

QString CsvValue(const QByteArray& field)
{
    QByteArray value = field.trimmed();
    if (value.size() >= 2 && value.startsWith(Quote) && value.endsWith(Quote)) {
        value = value.mid(1, value.size() - 2);
        value.replace("\"\"", "\"");
    }
    return QString::fromUtf8(value);
}
