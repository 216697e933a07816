#include "DocumentFixture.h"

#include <QXmlStreamReader>

namespace {

QString itemOf(const QXmlStreamReader &reader)
{
    QStringList attributes;
    for (const QXmlStreamAttribute &each : reader.attributes())
        attributes.append(" " + each.name().toString() + "=\"" + each.value().toString() + "\"");
    attributes.sort();
    return reader.tokenString() + (reader.isCDATA() ? " CDATA " : " ") + reader.name().toString()
        + reader.text().toString() + attributes.join("") + "\n";
}

} // namespace

std::string itemsOf(const QByteArray &document)
{
    QString items;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isCDATA() || !reader.isWhitespace())
            items += itemOf(reader);
    }
    return (items + reader.errorString()).toStdString();
}
