// A variants document: what can be read can be selected, looked over and written, and what is
// written is read as what it was.

#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "FuzzHost.h"
#include "qxMessage.h"

namespace {

QByteArray writtenAndRead()
{
    const QByteArray written = qxVariantWriter().write();
    qxMessage none;
    qxVariants::clearAll(none);
    FuzzHost::require(FuzzHost::readDocument(written), "what was written cannot be read again");
    return written;
}

/// Writing leaves out what a document cannot hold; what it has written stays as it is.
void writeAndReadAgain()
{
    writtenAndRead();
    const QByteArray written = writtenAndRead();
    FuzzHost::require(qxVariantWriter().write() == written, "what was written reads differently");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    FuzzHost::start();
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    FuzzHost::showWorkshop();
    if (FuzzHost::readDocument(input)) {
        const unsigned choice = FuzzHost::choiceOf(input);
        if (choice % 4 == 1)
            writeAndReadAgain();
        FuzzHost::selectSets();
        FuzzHost::selectStates(choice);
        FuzzHost::states();
        if (choice % 4 == 0)
            qxVariants::optimizeVariantSets();
        if (choice % 8 == 0)
            qxVariants::clearEmptyVariantSets();
    }
    FuzzHost::clear();
    return 0;
}
