#include "qxKernelServiceFactory.h"

#include <cstdio>

qxBaseService::~qxBaseService() = default;

qxKernelServiceFactory *qxKernelServiceFactory::the()
{
    static qxKernelServiceFactory factory;
    return &factory;
}

qxBaseService *qxKernelServiceFactory::lookUp(const char *typeName) const
{
    const auto found = m_services.constFind(QByteArray::fromRawData(typeName, qstrlen(typeName)));
    if (found == m_services.constEnd()) {
        std::fprintf(stderr, "qxKernelServiceFactory: couldn't find class '%s'!\n", typeName);
        return nullptr;
    }
    if (!*found)
        std::fprintf(stderr, "qxKernelServiceFactory: service '%s' is NULL!\n", typeName);
    return *found;
}
