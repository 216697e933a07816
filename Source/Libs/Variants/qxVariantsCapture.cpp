#include "qxVariants.h"

#include "qxLog.h"

namespace {

void sayUnavailable(const char *operation)
{
    qxLog::warning("%s: this build does not capture variant sets.", operation);
}

} // namespace

void qxVariants::createAndCaptureVariantSet(const char *, const char *)
{
    sayUnavailable("createAndCaptureVariantSet");
}

void qxVariants::activateCapturedVariantSet(const char *)
{
    sayUnavailable("activateCapturedVariantSet");
}
