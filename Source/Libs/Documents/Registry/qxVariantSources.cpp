#include "qxVariantSources.h"

#include "qxLightVariant.h"
#include "qxLightVariantCreator.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxNodeVariantCreator.h"
#include "qxOverlayVariant.h"
#include "qxOverlayVariantCreator.h"
#include "qxTransformVariant.h"
#include "qxTransformVariantCreator.h"
#include "qxVariantKinds.h"
#include "qxVariants.h"

#include "qxLights.h"
#include "qxNames.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <QSet>

#include <algorithm>

namespace {

typedef std::vector<qxSceneObject> Objects;

/// What is particular about making variants of a kind.
struct Source {
    const qxVariantKind *kind;
    std::unique_ptr<qxVariantCreator> (*creator)(); ///< null for materials, which are no tree
    qxVariant *(*create)(const qxSceneObject &object, bool notify);
    std::unique_ptr<qxVariant> (*build)(const qxSceneObject &object);
};

template <class Creator>
std::unique_ptr<qxVariantCreator> make()
{
    return std::make_unique<Creator>();
}

template <class Variant, Variant *(*create)(osg::NodePtr node, bool notify)>
qxVariant *ofNode(const qxSceneObject &object, bool notify)
{
    return create(object.node, notify);
}

template <class Variant>
std::unique_ptr<qxVariant> built(const qxSceneObject &object)
{
    return std::make_unique<Variant>(object.node);
}

// A list, not a procedure.
const Source &sourceOf(const qxVariantKind &kind)
{
    typedef qxVariants Registry;
    static const Source sources[] = {
        {&qxVariantKinds::node, make<qxNodeVariantCreator>,
         ofNode<qxNodeVariant, Registry::createNodeVariant>, built<qxNodeVariant>},
        {&qxVariantKinds::material, nullptr,
         [](const qxSceneObject &object, bool notify) -> qxVariant * {
             return Registry::createMaterialVariant(object.material, notify);
         },
         [](const qxSceneObject &object) -> std::unique_ptr<qxVariant> {
             return std::make_unique<qxMaterialVariant>(object.material);
         }},
        {&qxVariantKinds::light, make<qxLightVariantCreator>,
         ofNode<qxLightVariant, Registry::createLightVariant>, built<qxLightVariant>},
        {&qxVariantKinds::overlay, make<qxOverlayVariantCreator>,
         ofNode<qxOverlayVariant, Registry::createOverlayVariant>, built<qxOverlayVariant>},
        {&qxVariantKinds::transform, make<qxTransformVariantCreator>,
         ofNode<qxTransformVariant, Registry::createTransformVariant>,
         [](const qxSceneObject &object) -> std::unique_ptr<qxVariant> {
             return std::make_unique<qxTransformVariant>(qxNames::nameOf(object.node));
         }}};
    return *std::find_if(std::begin(sources), std::end(sources),
                         [&kind](const Source &source) { return source.kind == &kind; });
}

osg::NodePtr rootOf(const qxVariantKind &kind)
{
    return &kind == &qxVariantKinds::overlay ? qxOverlays::getPoolRoot() : qxScenegraph::getRoot();
}

std::vector<osg::MaterialPtr> materials()
{
    std::vector<osg::MaterialPtr> materials;
    qxScenegraph::getMaterialPool()->get(materials);
    return materials;
}

/// Gathers things without a variant, each name once.
class Gathering {
public:
    explicit Gathering(const qxVariantKind &kind) : m_kind(kind) {}

    void add(const qxSceneObject &object)
    {
        const QString name = qxVariantSources::nameOf(object);
        if (name.isEmpty() || m_known.contains(name) || m_kind.find(name))
            return;
        m_known.insert(name);
        m_objects.push_back(object);
    }
    const Objects &objects() const { return m_objects; }

private:
    const qxVariantKind &m_kind;
    QSet<QString> m_known;
    Objects m_objects;
};

/// Whether a variant of the kind does something to the object.
bool fits(const qxVariantKind &kind, const qxSceneObject &object)
{
    if (&kind == &qxVariantKinds::material)
        return object.switchMaterial != osg::NullFC;
    if (&kind == &qxVariantKinds::light || &kind == &qxVariantKinds::transform)
        return sourceOf(kind).creator()->takes(object.node);
    return true;
}

} // namespace

void qxVariantSources::createAll(const qxVariantKind &kind)
{
    if (const auto creator = sourceOf(kind).creator) {
        // The walk of the base class would announce nothing.
        creator()->traverse(rootOf(kind));
        return;
    }
    // Plain materials are left alone: a variant would put a switch material in their place.
    for (const osg::MaterialPtr &material : materials()) {
        if (osg::SwitchMaterialPtr::dcast(material) != osg::NullFC)
            qxVariants::createMaterialVariant(material, false);
    }
}

std::vector<qxSceneObject> qxVariantSources::varying(const qxVariantKind &kind)
{
    Gathering found(kind);
    const Source &source = sourceOf(kind);
    if (!source.creator) {
        for (const osg::MaterialPtr &material : materials()) {
            if (osg::SwitchMaterialPtr::dcast(material) != osg::NullFC)
                found.add(qxSceneObject(material));
        }
        return found.objects();
    }
    const auto creator = source.creator();
    for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(rootOf(kind))) {
        if (creator->takes(node))
            found.add(qxSceneObject(node));
    }
    return found.objects();
}

std::vector<qxSceneObject> qxVariantSources::others(const qxVariantKind &kind)
{
    Gathering found(kind);
    const bool isOfMaterials = &kind == &qxVariantKinds::material;
    if (!isOfMaterials && &kind != &qxVariantKinds::node && &kind != &qxVariantKinds::overlay)
        return found.objects();
    const osg::NodePtr root = rootOf(kind);
    for (const qxNodePtr &node : qxNodeUtils::getSubTreeNodes(root)) {
        if (node == root)
            continue;
        const qxSceneObject source = sourceAt(kind, node);
        const bool isVarying = isOfMaterials
            ? source.switchMaterial != osg::NullFC
            : source.node != osg::NullFC && sourceOf(kind).creator()->takes(source.node);
        if (!isVarying)
            found.add(source);
    }
    return found.objects();
}

qxSceneObject qxVariantSources::sourceAt(const qxVariantKind &kind, const osg::NodePtr &node)
{
    const qxSceneObject nothing{osg::NodePtr(osg::NullFC)};
    if (node == osg::NullFC)
        return nothing;
    if (&kind == &qxVariantKinds::material)
        return qxSceneObject(qxNodeUtils::getMaterial(node));
    // What a name means may be the node above.
    const QString name = qxNames::nameOf(node);
    const bool isFound = qxNodeUtils::isFoundByName(node);
    for (const qxSceneObject &object :
         isFound ? Objects{qxSceneObject(node)} : kind.rule.objects(name)) {
        if (fits(kind, object))
            return object;
    }
    return nothing;
}

QString qxVariantSources::nameOf(const qxSceneObject &object)
{
    return object.node != osg::NullFC ? qxNames::nameOf(object.node)
                                      : qxNames::nameOf(object.material);
}

qxVariant *qxVariantSources::create(const qxVariantKind &kind, const qxSceneObject &object,
                                    bool notify)
{
    return sourceOf(kind).create(object, notify);
}

std::unique_ptr<qxVariant> qxVariantSources::madeAnew(const qxVariantKind &kind,
                                                      const qxVariant &variant)
{
    for (const qxSceneObject &object : kind.rule.objects(variant.*kind.sceneName)) {
        if (fits(kind, object))
            return sourceOf(kind).build(object);
    }
    return nullptr;
}
