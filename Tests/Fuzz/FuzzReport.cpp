// Verification, linting and explaining of a document's sets beside the scene.

#include "qxVariantSet.h"
#include "qxVariantVerifier.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "FuzzHost.h"
#include "qxExplanation.h"
#include "qxForecast.h"
#include "qxLinter.h"

namespace {

QString noScriptIsWrong(const QString &)
{
    return QString();
}

/// Every line is whole, and the errors are counted.
void verify()
{
    const QString path = FuzzHost::path(QStringLiteral("report.csv"));
    qxVariantVerifier verifier;
    FuzzHost::require(verifier.verify(path), "a report is not written");
    const QByteArray report = FuzzHost::read(path);
    FuzzHost::require(report.isEmpty() || report.endsWith('\n'), "a report is cut off");
    const int errors = report.count("\nError,") + int(report.startsWith("Error,"));
    FuzzHost::require(errors >= verifier.errorCount(), "an error is missing in the report");
}

void explainSets()
{
    for (qxVariantSet *set : qxVariants::_variantSets) {
        qxForecast forecast;
        qxExplanation explanation(*set, forecast);
        const std::size_t entries = explanation.entries().size();
        set->select(true, false);
        explanation.compare({});
        FuzzHost::require(explanation.entries().size() == entries, "an explanation lost entries");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    FuzzHost::start();
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    FuzzHost::showWorkshop();
    qxLinter::lint(input, noScriptIsWrong);
    if (FuzzHost::readDocument(input)) {
        const QByteArray before = qxVariantWriter().write();
        verify();
        FuzzHost::require(qxVariantWriter().write() == before, "verifying changed the registry");
        explainSets();
        qxLinter::lint(before, noScriptIsWrong);
    }
    FuzzHost::clear();
    return 0;
}
