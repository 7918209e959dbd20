#include "TCatalogue.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

QStringList Forms(QXmlStreamReader& xml, bool isPlural)
{
    if (!isPlural)
        return {xml.readElementText()};
    QStringList forms;
    while (xml.readNextStartElement())
        forms.append(xml.readElementText());
    return forms;
}

tagMessage Message(QXmlStreamReader& xml, const QString& context)
{
    tagMessage message = {context, {}, {}, {}, false, false};
    message.isPlural = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        const QString name = xml.name().toString();
        if (name == QLatin1String("translation")) {
            message.isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
            message.forms = Forms(xml, message.isPlural);
        } else if (name == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (name == QLatin1String("comment")) {
            message.comment = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

} // namespace

TCatalogue::TCatalogue(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&file);
    xml.readNextStartElement();
    m_Language = xml.attributes().value(QLatin1String("language")).toString();
    while (xml.readNextStartElement()) { // a context
        QString context;
        while (xml.readNextStartElement()) {
            if (xml.name() == QLatin1String("name"))
                context = xml.readElementText();
            else if (xml.name() == QLatin1String("message"))
                m_Messages.append(Message(xml, context));
            else
                xml.skipCurrentElement();
        }
    }
    m_Error = xml.hasError() ? path + QLatin1String(": ") + xml.errorString() : QString();
}
