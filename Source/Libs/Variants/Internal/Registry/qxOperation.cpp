#include "Internal/Registry/qxOperation.h"

int qxOperation::s_depth = 0;
std::vector<std::shared_ptr<void>> qxOperation::s_graves;

qxOperation::~qxOperation()
{
    if (--s_depth == 0)
        s_graves.clear();
}
