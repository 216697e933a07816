#pragma once

#include "qxVariantReader.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "HostFixture.h"

typedef std::vector<std::string> Lines;

/// A test with an empty registry at its beginning and at its end.
class DocumentFixture : public HostFixture {
protected:
    bool read(const QByteArray &document)
    {
        qxVariantReader reader;
        reader.read(document.constData());
        return reader.isRead();
    }
    /// Reads a document with this inside the root element.
    void readInside(const QByteArray &content) { read("<Variants>" + content + "</Variants>"); }
    QByteArray written() { return qxVariantWriter().write(); }
};
