// A table of sets: each of its flaws has a reason, and what it makes of a document is a document of
// which the table is the same.

#include "FuzzHost.h"
#include "Table/qxSetTable.h"
#include "Table/qxSetTableReader.h"
#include "qxDocumentXml.h"

namespace {

qxDocument edited()
{
    qxDocument document = qxDocumentXml::read(FuzzHost::read(QStringLiteral(QX_FUZZ_DOCUMENT)));
    document.settle();
    return document;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    FuzzHost::start();
    static const qxDocument before = edited();
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    const auto reading = qxSetTableReader::read(input, before);
    for (const qxSetTableReader::Flaw &flaw : reading.flaws)
        FuzzHost::require(!flaw.reason.isEmpty(), "a flaw without a reason");
    if (!reading.flaws.empty())
        return 0;
    const QByteArray text = qxDocumentXml::write(reading.document);
    qxDocument again = qxDocumentXml::read(text);
    again.settle();
    FuzzHost::require(qxDocumentXml::write(again) == text, "a table made what no document holds");
    const auto same = qxSetTableReader::read(input, reading.document);
    FuzzHost::require(same.flaws.empty() && qxDocumentXml::write(same.document) == text,
                      "a table edits what it has edited");
    const auto own = qxSetTableReader::read(qxSetTable::write(reading.document), reading.document);
    FuzzHost::require(own.flaws.empty() && qxDocumentXml::write(own.document) == text,
                      "a table of ours reads as another document");
    return 0;
}
