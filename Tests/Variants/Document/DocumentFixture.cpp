#include "DocumentFixture.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace {

std::string itemOf(const QXmlStreamReader &reader)
{
    QStringList attributes;
    for (const QXmlStreamAttribute &each : reader.attributes())
        attributes.append(" " + each.name().toString() + "=\"" + each.value().toString() + "\"");
    attributes.sort();
    return ("<" + reader.name().toString() + attributes.join("") + ">").toStdString();
}

} // namespace

Lines itemsOf(const QByteArray &document)
{
    Lines items;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType type = reader.readNext();
        if (type == QXmlStreamReader::StartElement)
            items.push_back(itemOf(reader));
        else if (type == QXmlStreamReader::EndElement)
            items.push_back("</" + reader.name().toString().toStdString() + ">");
        else if (type == QXmlStreamReader::DTD)
            items.push_back(reader.text().toString().toStdString());
        else if (type == QXmlStreamReader::Characters
                 && (reader.isCDATA() || !reader.isWhitespace()))
            items.push_back((reader.isCDATA() ? "CDATA " : "")
                            + reader.text().toString().toStdString());
    }
    if (reader.hasError())
        items.push_back("error: " + reader.errorString().toStdString());
    return items;
}
