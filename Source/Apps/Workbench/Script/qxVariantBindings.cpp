#include "qxVariantBindings.h"

#include "qxVariantGroup.h"
#include "qxVariantSet.h"
#include "qxVariantSetPtr.h"
#include "qxVariants.h"

#include "qxPythonInit.h"
#include "qxText.h"

#include <boost/python.hpp>

#include <filesystem>

namespace python = boost::python;

namespace {

QStringList &scriptArguments()
{
    static QStringList arguments;
    return arguments;
}

qxVariantSetPtr findVariantSet(const std::string &name)
{
    return qxVariantSetPtr(qxVariants::findVariantSet(qxText::fromUtf8(name)));
}

template <class List>
python::list namesOf(const List &objects)
{
    python::list names;
    for (const auto *object : objects)
        names.append(qxText::toUtf8(object->name));
    return names;
}

python::list getVariantSets()
{
    return namesOf(qxVariants::_variantSets);
}

python::list getVariantGroups()
{
    return namesOf(qxVariants::_variantGroups);
}

qxVariantGroup *groupCalled(const QString &name)
{
    qxVariantGroup *const group = qxVariants::findVariantGroup(name);
    return group || name.isEmpty() ? group : qxVariants::createVariantGroup(name, true, true);
}

qxVariantSetPtr createVariantSet(const std::string &name, const std::string &group)
{
    if (name.empty()) {
        PyErr_SetString(PyExc_ValueError, "a variant set needs a name");
        python::throw_error_already_set();
    }
    const QString unique = qxVariants::getUniqueVariantSetName(qxText::fromUtf8(name));
    return qxVariantSetPtr(
        qxVariants::createVariantSet(unique, true, groupCalled(qxText::fromUtf8(group))));
}

bool removeVariantSet(const std::string &name)
{
    const QString text = qxText::fromUtf8(name);
    return qxVariants::findVariantSet(text) && qxVariants::removeVariantSet(text);
}

void defineFunctions()
{
    const python::docstring_options onlyOwnTexts(true, false, false);
    const python::scope names(python::import("__main__"));
    python::def("findVariantSet", findVariantSet, python::arg("name"),
                "The variant set of that name; a handle that does nothing when there is none.");
    python::def("getVariantSets", getVariantSets,
                "The names of all variant sets, in the order of their creation.");
    python::def("getVariantGroups", getVariantGroups,
                "The names of all variant groups, in the order of their creation.");
    python::def("createVariantSet", createVariantSet,
                (python::arg("name"), python::arg("group") = ""),
                "A new variant set. Its name is varied when it is taken. It joins the group of "
                "that name, which is created when it is missing.");
    python::def("removeVariantSet", removeVariantSet, python::arg("name"),
                "Removes the variant set of that name; False when there was none. Handles on it "
                "must not be used any more.");
}

void defineArguments()
{
    const QStringList &arguments = scriptArguments();
    if (arguments.isEmpty())
        return;
    python::list texts;
    for (const QString &argument : arguments)
        texts.append(qxText::toUtf8(argument));
    python::object sys = python::import("sys");
    sys.attr("argv") = texts;
    const std::filesystem::path script = qxText::toUtf8(arguments.first());
    if (std::filesystem::is_regular_file(script))
        sys.attr("path").attr("insert")(0, absolute(script).parent_path().string());
}

void pythonInit(bool destroy)
{
    if (destroy)
        return;
    defineFunctions();
    defineArguments();
}

const qxPythonInit init(pythonInit);

} // namespace

void qxVariantBindings::setArguments(const QStringList &arguments)
{
    scriptArguments() = arguments;
}
