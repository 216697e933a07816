#include "qxSoakSteps.h"

#include "qxLightVariantCreator.h"
#include "qxNodeVariantCreator.h"
#include "qxOverlayVariantCreator.h"
#include "qxTransformVariantCreator.h"
#include "qxVariant.h"
#include "qxVariants.h"

#include "qxHost.h"
#include "qxMessage.h"
#include "qxOverlays.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>

/// A step, how often it comes among the others, and what it is called.
struct qxSoakSteps::Row {
    Step step;
    unsigned share;
    const char *name;
};

const int Light = 2;
const int Overlay = 3;

static QStringList statesOf(int kind, const qxVariant &variant)
{
    if (kind == Light)
        return {variantEnable, variantDisable};
    QStringList states;
    for (const qxVariantOption &option : variant.options) {
        if (!option.name.startsWith('!'))
            states << option.name;
    }
    return states;
}

// A list, not a procedure.
const std::vector<qxSoakSteps::Row> &qxSoakSteps::rows()
{
    typedef qxSoakSteps Own;
    static const std::vector<Row> rows = {
        {&Own::createVariant, 30, "create a variant of an object"},
        {&Own::createNamedVariant, 15, "create a variant by name"},
        {&Own::removeVariant, 15, "remove a variant"},
        {&Own::renameVariant, 10, "rename a variant"},
        {&Own::editVariant, 30, "edit a variant"},
        {&Own::clearKind, 1, "clear variants of a kind"},
        {&Own::createSet, 20, "create a set"},
        {&Own::removeSet, 12, "remove a set"},
        {&Own::renameSet, 10, "rename a set"},
        {&Own::addReference, 40, "add an entry to a set"},
        {&Own::removeReference, 12, "remove an entry from a set"},
        {&Own::editSet, 20, "edit a set"},
        {&Own::useHandle, 15, "use a script's handle"},
        {&Own::createGroup, 8, "create a group"},
        {&Own::removeGroup, 4, "remove a group"},
        {&Own::editGroup, 8, "edit a group"},
        {&Own::moveSet, 20, "move a set between groups"},
        {&Own::clearEmpty, 2, "clear what is empty"},
        {&Own::selectState, 60, "select a state"},
        {&Own::selectSet, 40, "select a set"},
        {&Own::captureAndShowAgain, 6, "capture"},
        {&Own::undoEdits, 12, "edit and undo"},
        {&Own::lookOver, 2, "verify and optimize"},
        {&Own::writeAndRead, 6, "write and read the document"},
        {&Own::saveAndOpen, 2, "save and open the scene"},
        {&Own::startAgain, 1, "open the first scene"},
    };
    return rows;
}

qxSoakSteps::qxSoakSteps(qxHost &host, const QString &scene, const QString &place,
                         const Choice &choice)
    : m_host(host), m_scene(scene), m_place(place), m_choice(choice)
{
    startAgain();
}

QString qxSoakSteps::take()
{
    static const unsigned all = [] {
        unsigned sum = 0;
        for (const Row &row : rows())
            sum += row.share;
        return sum;
    }();
    auto row = rows().begin();
    for (unsigned at = m_choice(all); at >= row->share; ++row)
        at -= row->share;
    m_last = QString::fromLatin1(row->name);
    (this->*row->step)();
    return m_failure.isEmpty() ? check() : m_failure;
}

QString qxSoakSteps::check() const
{
    const QString difference = m_model.difference(qxPlainRegistry::ofModule());
    return difference.isEmpty() ? checkShown() : difference;
}

/// Each variant says of what it drives what the model says.
QString qxSoakSteps::checkShown() const
{
    for (const Object &each : m_objects) {
        for (const qxPlainVariant &variant : m_model.variants[std::size_t(each.kind)]) {
            if (variant.base != each.name)
                continue;
            const qxVariant *const real = qxPlainKind(each.kind).find(variant.name);
            const QString shown = real ? real->onCurrent() : QStringLiteral("(not found)");
            if (shown != each.states.value(each.shown))
                return QStringLiteral("\"%1\" should show \"%2\", but shows \"%3\"")
                    .arg(variant.name, each.states.value(each.shown), shown);
        }
    }
    return QString();
}

void qxSoakSteps::createAll()
{
    qxNodeVariantCreator().traverse(qxScenegraph::getRoot());
    qxLightVariantCreator().traverse(qxScenegraph::getRoot());
    qxTransformVariantCreator().traverse(qxScenegraph::getRoot());
    qxOverlayVariantCreator().traverse(qxOverlays::getPoolRoot());
    qxVariants::createNodeVariant(qxScenegraph::environmentGeometrySwitch(), false);
    std::vector<osg::MaterialPtr> materials;
    qxScenegraph::getMaterialPool()->get(materials);
    for (const osg::MaterialPtr &material : materials) {
        if (osg::SwitchMaterialPtr::dcast(material) != osg::NullFC)
            qxVariants::createMaterialVariant(material, false);
    }
}

void qxSoakSteps::open(const QString &path)
{
    auto file = std::make_unique<qxSceneFile>();
    const bool isOpen = file->load(path, [this](qxSceneFile::Step next) {
        if (next == qxSceneFile::Showing)
            m_host.clearScene();
    });
    if (!isOpen)
        return fail(file->errorString());
    m_file = std::move(file);
    m_edits.stack()->clear();
}

void qxSoakSteps::startAgain()
{
    open(m_scene);
    m_objects.clear();
    m_model = qxPlainRegistry();
    createAll();
    for (int kind = 0; kind < qxPlainKinds; ++kind) {
        qxPlainKind(kind).visit([&](qxVariant &variant) {
            const QStringList states = statesOf(kind, variant);
            if (!states.isEmpty())
                m_objects.push_back({kind, variant.*qxPlainKind(kind).sceneName, states,
                                     states.indexOf(variant.onCurrent())});
        });
    }
    qxMessage none;
    qxVariants::clearAll(none);
}

/// A text for a name or a comment: such as objects have, and others.
QString qxSoakSteps::text()
{
    static const QStringList others{"",        "Sport",    "Family",   "Ä ö",        "<&\"'>",
                                    "a\tb",    "RAL 9010", "!Next",    "Set 2",      "Set",
                                    "  x ",    "Red",      "LampNode", "Alloy",      "Group",
                                    "Group 2", "-",        "1",        "WheelSwitch"};
    return others[int(m_choice(unsigned(others.size())))];
}

qxSoakSteps::Object &qxSoakSteps::object()
{
    return m_objects[m_choice(unsigned(m_objects.size()))];
}

qxSoakSteps::Object *qxSoakSteps::objectOf(int kind, const QString &base)
{
    const auto found = std::find_if(m_objects.begin(), m_objects.end(), [&](const Object &each) {
        return each.kind == kind && each.name == base;
    });
    return found == m_objects.end() ? nullptr : &*found;
}

/// A state of the object, or a step from the present one.
QString qxSoakSteps::stateFor(const Object &driven)
{
    static const QString steps[] = {variantNext, variantNextLoop, variantPrevious,
                                    variantPreviousLoop};
    if (driven.kind == Light && m_choice(3) == 0)
        return variantToggle;
    if (driven.kind == Light || driven.kind == Overlay || driven.shown < 0 || m_choice(3) > 0)
        return driven.states[int(m_choice(unsigned(driven.states.size())))];
    return steps[m_choice(4)];
}

/// What the model's scene makes of a state.
void qxSoakSteps::apply(int kind, const QString &variant, const QString &state)
{
    const auto found = qxPlainFind(m_model.variants[std::size_t(kind)], variant);
    if (found == m_model.variants[std::size_t(kind)].end())
        return;
    Object *const driven = objectOf(kind, found->base);
    if (!driven)
        return;
    const int count = driven->states.size();
    int &shown = driven->shown;
    if (driven->states.contains(state))
        shown = driven->states.indexOf(state);
    else if (state == variantToggle && kind == Light)
        shown = 1 - shown;
    else if (state == variantNext)
        shown = std::min(shown + 1, count - 1);
    else if (state == variantNextLoop)
        shown = (shown + 1) % count;
    else if (state == variantPrevious)
        shown = std::max(shown - 1, 0);
    else if (state == variantPreviousLoop)
        shown = (std::max(shown, 0) + count - 1) % count;
}
