#include "texts/HostText.h"

#include "texts/HostTextRows.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QVector>

namespace {

const char* const Context = "Host";
const char* const Unknown = QT_TRANSLATE_NOOP("Host", "Details for the support: %1");

const QRegularExpression& Marker()
{
    static const QRegularExpression marker(QLatin1String("%([1-9])"));
    return marker;
}

/// What @p heard looks like with any texts at its markers.
QRegularExpression FormOf(const char* heard)
{
    QString form = QLatin1String("\\A");
    int at = 0;
    const QString text = QString::fromUtf8(heard);
    QRegularExpressionMatchIterator markers = Marker().globalMatch(text);
    while (markers.hasNext()) {
        const QRegularExpressionMatch marker = markers.next();
        form += QRegularExpression::escape(text.mid(at, marker.capturedStart() - at)) + QLatin1String("(.*)");
        at = static_cast<int>(marker.capturedEnd());
    }
    form += QRegularExpression::escape(text.mid(at)) + QLatin1String("\\z");
    return QRegularExpression(form, QRegularExpression::DotMatchesEverythingOption);
}

struct tagForm
{
    const HostTextRows::tagRow* row;
    QRegularExpression form;
};

QVector<tagForm> AllForms()
{
    QVector<tagForm> forms;
    for (const HostTextRows::tagRows& rows : {HostTextRows::OfHost(), HostTextRows::OfSystem()}) {
        for (const HostTextRows::tagRow& row : rows)
            forms.append({&row, FormOf(row.heard)});
    }
    return forms;
}

/// All markers at once: what stands for one may look like another.
QString Filled(const QString& sentence, const QStringList& values)
{
    QString filled;
    int at = 0;
    QRegularExpressionMatchIterator markers = Marker().globalMatch(sentence);
    while (markers.hasNext()) {
        const QRegularExpressionMatch marker = markers.next();
        filled += sentence.mid(at, marker.capturedStart() - at) + values.value(marker.captured(1).toInt());
        at = static_cast<int>(marker.capturedEnd());
    }
    return filled + sentence.mid(at);
}

} // namespace

QString CabQuick::HostText(const QString& english)
{
    if (english.isEmpty())
        return QString();
    static const QVector<tagForm> forms = AllForms();
    const QString whole = QString::fromUtf8(english.toUtf8()); // half a character would fit no form
    for (const tagForm& form : forms) {
        const QRegularExpressionMatch match = form.form.match(whole);
        if (!match.hasMatch())
            continue;
        const HostTextRows::tagRow& row = *form.row;
        QStringList values = match.capturedTexts(); // the first is the whole text
        if (row.reason > 0)
            values[row.reason] = HostText(values.at(row.reason));
        const int count = row.count > 0 ? values.at(row.count).toInt() : -1;
        return Filled(QCoreApplication::translate(Context, row.shown, nullptr, count), values);
    }
    return QCoreApplication::translate(Context, Unknown).arg(whole);
}
