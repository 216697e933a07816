#include "Internal/Registry/qxDeferredDeletion.h"

int qxDeferredDeletion::s_depth = 0;
std::vector<std::shared_ptr<void>> qxDeferredDeletion::s_graves;

qxDeferredDeletion::~qxDeferredDeletion()
{
    if (--s_depth == 0)
        s_graves.clear();
}
