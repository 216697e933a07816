#pragma once

#include <boost/python/converter/registrations.hpp>

/// One scripting module of this library in the host's interpreter.
class qxScriptModule {
public:
    /// The function that Python calls to make a module.
#if PY_MAJOR_VERSION >= 3
    typedef PyObject *(*Entry)();
#else
    typedef void (*Entry)();
#endif

    qxScriptModule(const char *name, Entry entry) : m_name(name), m_entry(entry) {}

    /// What the host calls when its interpreter starts, each time, and when it ends. At start all
    /// names of the module come into the interpreter's global name space.
    void pythonInit(bool destroy);

private:
    void registerOnce();

    const char *m_name;
    Entry m_entry;
    bool m_isRegistered = false;
};

/// Boost.Python's registry entry for a type of this library, for the type's registered_base.
///
/// The registry outlives the library where the host unloads it before an interpreter started, and
/// it compares its entries by the names of their types: this entry's name stays in memory.
const boost::python::converter::registration &stayingRegistration(const std::type_info &type);
