#include "qxVariantBindings.h"

#include "qxVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariantSetPtr.h"
#include "qxVariants.h"

#include "qxDocumentBindings.h"
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

python::list getVariantSetsOf(const std::string &groupName)
{
    const QString name = qxText::fromUtf8(groupName);
    if (const qxVariantGroup *group = qxVariants::findVariantGroup(name))
        return namesOf(group->sets);
    std::vector<const qxVariantSet *> withoutGroup;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (name.isEmpty() && !set->group)
            withoutGroup.push_back(set);
    }
    return namesOf(withoutGroup);
}

python::list getVariantGroups()
{
    return namesOf(qxVariants::_variantGroups);
}

python::list getVariantSetStates(const std::string &name)
{
    python::list states;
    const qxVariantSet *const set = qxVariants::findVariantSet(qxText::fromUtf8(name));
    if (!set)
        return states;
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        for (const qxVariantState &each : set->*kind->states)
            states.append(python::make_tuple(kind->word.latin1(), qxText::toUtf8(each.variant),
                                             qxText::toUtf8(each.state)));
    }
    return states;
}

python::list getVariantStates(const std::string &kindWord, const std::string &name)
{
    const qxVariantKind *const kind =
        qxVariantKinds::by(&qxVariantKind::word, qxText::fromUtf8(kindWord));
    if (!kind) {
        PyErr_Format(PyExc_ValueError, "\"%s\" is no kind of variants", kindWord.c_str());
        python::throw_error_already_set();
    }
    python::list names;
    if (const qxVariant *variant = kind->find(qxText::fromUtf8(name))) {
        for (const qxVariantOption &option : variant->options)
            names.append(qxText::toUtf8(option.name));
    }
    return names;
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
    python::def(
        "getVariantSets", getVariantSetsOf, python::arg("group"),
        "With a group: the names of its variant sets, in its order. An empty name stands for "
        "the sets without a group.");
    python::def("getVariantGroups", getVariantGroups,
                "The names of all variant groups, in the order of their creation.");
    python::def("getVariantSetStates", getVariantSetStates, python::arg("name"),
                "What the variant set of that name refers to: tuples of the kind of a variant, its "
                "name, and the state that the set brings it into. The kinds are \"node\", "
                "\"material\", \"light\", \"overlay\" and \"transform\".");
    python::def("getVariantStates", getVariantStates, (python::arg("kind"), python::arg("name")),
                "The states and actions of the variant of that kind and name; none when there is "
                "no such variant.");
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
    qxDocumentBindings::define();
    defineArguments();
}

const qxPythonInit init(pythonInit);

} // namespace

void qxVariantBindings::setArguments(const QStringList &arguments)
{
    scriptArguments() = arguments;
}
