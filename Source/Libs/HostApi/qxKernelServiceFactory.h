#pragma once

#include <QByteArray>
#include <QHash>

#include <typeinfo>

/// Base class of all services. The host owns them.
class qxBaseService {
public:
    virtual ~qxBaseService();
};

/// Registry of services by their class. The host registers them.
class qxKernelServiceFactory {
public:
    /// The one of the process; never null.
    static qxKernelServiceFactory *the();

    /// The service registered for class `T`, or null. A missing and a null service are reported on
    /// standard error, because both are faults in the set-up of the host.
    template <class T>
    T *getService() const
    {
        return dynamic_cast<T *>(lookUp(typeid(T).name()));
    }

    /// Registers `service` for class `T` in place of an earlier one. It is not owned.
    template <class T>
    void registerService(qxBaseService *service)
    {
        m_services.insert(typeid(T).name(), service);
    }
    /// Unregisters the service for class `T`.
    template <class T>
    void unregisterService()
    {
        m_services.remove(typeid(T).name());
    }

private:
    qxBaseService *lookUp(const char *typeName) const;

    QHash<QByteArray, qxBaseService *> m_services;
};
