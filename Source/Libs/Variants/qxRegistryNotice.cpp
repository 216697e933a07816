#include "qxRegistryNotice.h"

#include "Internal/Registry/qxNotify.h"
#include "qxVariantKind.h"

void qxRegistryNotice::variantsChanged(const qxVariantKind &kind)
{
    qxNotify::variantsChangedByDocument(kind.notifications);
}

void qxRegistryNotice::setsChanged()
{
    qxNotify::variantSetChanged();
}

void qxRegistryNotice::groupsChanged()
{
    qxNotify::variantGroupChanged();
}
