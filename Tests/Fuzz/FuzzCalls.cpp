// Sequences of calls: the bytes are choices among the steps of the soak program.

#include "FuzzHost.h"
#include "qxSoakSteps.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    qxHost &host = FuzzHost::start();
    const unsigned char *const end = data + size;
    const auto next = [&]() -> unsigned { return data < end ? *data++ : 0; };
    const auto choice = [&](unsigned below) {
        const unsigned number = next();
        return (below > 256 ? number + 256 * next() : number) % below;
    };
    qxSoakSteps steps(host, QStringLiteral(QX_FUZZ_SCENE),
                      FuzzHost::path(QStringLiteral("saved.gltf")), choice);
    while (data < end) {
        const QString wrong = steps.take();
        FuzzHost::require(wrong.isEmpty(), qUtf8Printable(steps.last() + ": " + wrong));
    }
    FuzzHost::clear();
    return 0;
}
