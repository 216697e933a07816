// A variants document beside one of ours: compared, merged, written as a table, brought into the
// registry.

#include "Compare/qxDocumentDiff.h"
#include "FuzzHost.h"
#include "Merge/qxDocumentMerge.h"
#include "Registry/qxRegistryEdit.h"
#include "Table/qxSetTable.h"
#include "Table/qxSetTableReader.h"
#include "qxDocumentXml.h"
#include "qxRegistryDocument.h"

namespace {

qxDocument settled(const QByteArray &xml)
{
    qxDocument document = qxDocumentXml::read(xml);
    document.settle();
    return document;
}

/// One that has everything.
const qxDocument &ours()
{
    static const qxDocument document = settled(FuzzHost::read(QStringLiteral(QX_FUZZ_DOCUMENT)));
    return document;
}

/// Two documents have a difference exactly when their texts have one.
void compare(const qxDocument &one, const qxDocument &other)
{
    const bool isSame = qxDocumentXml::write(one) == qxDocumentXml::write(other);
    FuzzHost::require(qxDocumentDiff::of(one, other).isEmpty() == isSame, "a difference is lost");
    FuzzHost::require(qxDocumentDiff::of(other, one).isEmpty() == isSame, "a difference is lost");
    FuzzHost::require(qxDocumentDiff::of(one, one).isEmpty(), "a document differs from itself");
}

void requireSame(const qxDocument &one, const qxDocument &other, const char *what)
{
    FuzzHost::require(qxDocumentXml::write(one) == qxDocumentXml::write(other), what);
}

void merge(const qxDocument &base, const qxDocument &one, const qxDocument &other)
{
    requireSame(qxDocumentMerge::of(base, base, one).document, one, "their edits are lost");
    requireSame(qxDocumentMerge::of(base, one, base).document, one, "our edits are lost");
    for (const auto preference :
         {qxMergePreference::Both, qxMergePreference::Ours, qxMergePreference::Theirs}) {
        const qxDocument merged = qxDocumentMerge::of(base, one, other, preference).document;
        requireSame(merged, settled(qxDocumentXml::write(merged)), "merging made twins");
    }
}

void tabulate(const qxDocument &document)
{
    const auto read = qxSetTableReader::read(qxSetTable::write(document), document);
    FuzzHost::require(read.flaws.empty(), "a table of ours cannot be read");
    requireSame(read.document, document, "a table reads as another document");
}

void bring(const qxDocument &document)
{
    qxRegistryEdit::apply(document);
    requireSame(qxRegistryDocument::current(), document, "the registry holds another document");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    FuzzHost::start();
    // What is written once holds no characters any more that a document cannot.
    const qxDocument input = settled(
        qxDocumentXml::write(settled(QByteArray(reinterpret_cast<const char *>(data), int(size)))));
    requireSame(input, settled(qxDocumentXml::write(input)), "what was written reads differently");
    compare(input, ours());
    merge(qxDocument(), input, ours());
    merge(input, ours(), qxDocument());
    merge(ours(), input, qxDocument());
    tabulate(input);
    FuzzHost::showWorkshop();
    bring(ours());
    bring(input);
    FuzzHost::clear();
    return 0;
}
