#include "Internal/Registry/qxScriptModule.h"

#include "qxScript.h"

#include <boost/python/converter/registry.hpp>
#include <boost/python/errors.hpp>

#include <sys/mman.h>

#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <string>

namespace {

/// From now on the interpreter holds pointers into this library: unloading must not take it away.
void keepLibraryLoaded()
{
    Dl_info library;
    if (dladdr(reinterpret_cast<void *>(&keepLibraryLoaded), &library))
        dlopen(library.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
}

/// Makes the module and shows it to "import". False with a Python error.
bool makeModule(const char *name, qxScriptModule::Entry entry)
{
#if PY_MAJOR_VERSION >= 3
    PyObject *const made = entry();
    const bool isMade = made && PyDict_SetItemString(PyImport_GetModuleDict(), name, made) == 0;
    Py_XDECREF(made);
    return isMade;
#else
    entry(); // enters the module itself
    return PyDict_GetItemString(PyImport_GetModuleDict(), name) && !PyErr_Occurred();
#endif
}

/// A copy of the text in memory of the process, which nobody frees.
const char *stayingCopy(const char *text)
{
    const std::size_t size = std::strlen(text) + 1;
    void *const page =
        mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return page == MAP_FAILED ? text : static_cast<const char *>(std::memcpy(page, text, size));
}

/// Names a type as another one does, out of memory that stays.
struct StayingType : std::type_info {
    explicit StayingType(const std::type_info &type) : std::type_info(stayingCopy(type.name())) {}
};

} // namespace

const boost::python::converter::registration &stayingRegistration(const std::type_info &type)
{
    namespace registry = boost::python::converter::registry;
    const boost::python::converter::registration *const known = registry::query(type);
    return known ? *known : registry::lookup(StayingType(type));
}

void qxScriptModule::pythonInit(bool destroy)
{
    if (destroy) {
        std::printf("pythonInit: destroy %s!\n", m_name);
        return;
    }
    registerOnce();
    const std::string name = m_name;
    qxScript::run(("import " + name).c_str());
    qxScript::run(("from " + name + " import *").c_str());
}

void qxScriptModule::registerOnce()
{
    if (m_isRegistered)
        return;
    m_isRegistered = true;
    keepLibraryLoaded();
    if (!makeModule(m_name, m_entry))
        boost::python::throw_error_already_set(); // the host logs it
}
