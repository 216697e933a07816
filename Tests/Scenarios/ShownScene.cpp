#include "ShownScene.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "Materials/qxSurface.h"
#include "OSGOverlayCore.h"
#include "OSGSwitchComponentTransform.h"
#include "OSGUberLight.h"
#include "Scene/OSGTransformStates.h"
#include "Scene/qxNodeName.h"
#include "TestScene.h"
#include "qxAnimManager.h"
#include "qxFindCache.h"
#include "qxMaterials.h"
#include "qxOverlays.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>
#include <map>
#include <sstream>

namespace {

/// Writes the lines.
class Lines {
public:
    std::string text() const { return m_text.str(); }
    void writeMaterials();
    void write(const osg::NodePtr &node, int depth);
    void writeRest();

private:
    template <class Object>
    void writeName(const Object &object);
    void write(const osg::Matrix &matrix);
    void write(const osg::NodeCorePtr &core);
    void writePoses(const osg::NodePtr &node);
    void write(const osg::MaterialPtr &material);
    void describe(const osg::MaterialPtr &material);

    std::ostringstream m_text;
    std::map<osg::UInt32, std::size_t> m_cores;
    std::map<osg::UInt32, std::size_t> m_materials;
};

template <class Object>
void Lines::writeName(const Object &object)
{
    const osg::Char8 *const name = osg::getName(object);
    m_text << ' ' << object->getTypeName() << (name ? std::string(" '") + name + "'" : " -");
}

void Lines::write(const osg::Matrix &matrix)
{
    m_text << " [";
    for (int i = 0; i < 16; ++i)
        m_text << matrix.getValues()[i] + 0.0f << ' ';
    m_text << ']';
}

/// Each material is described where it comes first, and has a number from then on.
void Lines::write(const osg::MaterialPtr &material)
{
    if (material == osg::NullFC) {
        m_text << " no material";
        return;
    }
    const auto known = m_materials.emplace(material.getFieldContainerId(), m_materials.size());
    m_text << " #" << known.first->second;
    if (known.second)
        describe(material);
}

void Lines::describe(const osg::MaterialPtr &material)
{
    writeName(material);
    const auto choices = osg::SwitchMaterialPtr::dcast(material);
    if (choices != osg::NullFC) {
        m_text << '=' << choices->getChoice() << " (";
        for (const osg::MaterialPtr &each : choices->getMaterials())
            write(each);
        m_text << ')';
        return;
    }
    const auto plain = osg::SimpleMaterialPtr::dcast(material);
    const qxSurface surface = qxSurface::of(material);
    for (const osg::Color3f &colour : {plain->getDiffuse(), plain->getEmission()})
        m_text << ' ' << colour.red() << ' ' << colour.green() << ' ' << colour.blue();
    m_text << ' ' << plain->getTransparency() << ' ' << surface.metallic << ' ' << surface.roughness
           << ' ' << surface.alphaMode << surface.environment;
}

void Lines::writeMaterials()
{
    std::vector<osg::MaterialPtr> pool;
    qxScenegraph::getMaterialPool()->get(pool);
    for (const osg::MaterialPtr &material : pool) {
        // Nothing finds a switch material without a name, and reading the variants makes new ones.
        if (material->getType() == osg::SwitchMaterial::getClassType()
            && qxMaterials::getName(material).empty())
            continue;
        write(material);
        m_text << '\n';
    }
}

/// What shows as if it were not there is left out: a transform that moves nothing is a group.
void Lines::write(const osg::NodeCorePtr &core)
{
    const auto transform = osg::TransformPtr::dcast(core);
    const auto states = osg::SwitchComponentTransformPtr::dcast(core);
    const auto choices = osg::SwitchPtr::dcast(core);
    const auto light = osg::UberLightPtr::dcast(core);
    const auto overlay = osg::OverlayCorePtr::dcast(core);
    const auto part = osg::GeometryPtr::dcast(core);
    if (part != osg::NullFC)
        writeName(core);
    if (states != osg::NullFC || choices != osg::NullFC) {
        m_text << ' ' << core->getTypeName();
        const auto number = m_cores.emplace(core.getFieldContainerId(), m_cores.size());
        if (!number.second)
            m_text << " as " << number.first->second;
    }
    if (transform != osg::NullFC && transform->getMatrix() != osg::Matrix::identity())
        write(transform->getMatrix());
    if (choices != osg::NullFC)
        m_text << " =" << choices->getChoice();
    if (states != osg::NullFC) {
        m_text << " =" << states->getChoice();
        for (const osg::Matrix &state : states->getStates())
            write(state);
    }
    if (light != osg::NullFC)
        m_text << " light " << light->getOn() << light->getKind() << ' ' << light->getIntensity();
    if (overlay != osg::NullFC)
        m_text << " overlay " << overlay->getLayer();
    if (part != osg::NullFC) {
        const osg::GeoPositionsPtr corners = part->getPositions();
        m_text << ' ' << (corners == osg::NullFC ? 0 : corners->getSize());
        write(part->getMaterial());
    }
}

void Lines::writePoses(const osg::NodePtr &node)
{
    const auto states =
        osg::TransformStatesPtr::dcast(node->findAttachment(osg::TransformStates::getClassType()));
    if (states == osg::NullFC)
        return;
    m_text << " in " << states->getSelected();
    for (osg::UInt32 i = 0; i < states->getPoses().size(); ++i) {
        m_text << " '" << states->getNames()[i] << '\'';
        write(states->getPoses()[i]);
    }
}

/// Parts stand behind other children, unless the node is a switch, which counts them. The empty
/// node of a new viewpoint is no part of what is shown.
std::vector<osg::NodePtr> childrenOf(const osg::NodePtr &node)
{
    std::vector<osg::NodePtr> children(node->getMFChildren()->begin(),
                                       node->getMFChildren()->end());
    if (osg::SwitchPtr::dcast(node->getCore()) != osg::NullFC)
        return children;
    const auto isEmpty = [](const osg::NodePtr &child) {
        return !osg::getName(child) && child->getNChildren() == 0
            && osg::LightPtr::dcast(child->getCore()) == osg::NullFC && !qxIsPart(child);
    };
    children.erase(std::remove_if(children.begin(), children.end(), isEmpty), children.end());
    std::stable_partition(children.begin(), children.end(),
                          [](const osg::NodePtr &child) { return !qxIsPart(child); });
    return children;
}

/// A part without a name of its own is shown again with its node.
bool isHidden(const osg::NodePtr &node)
{
    const osg::NodePtr parent = node->getParent();
    const bool goesWithNode = parent != osg::NullFC && parent->getTravMask() == 0 && qxIsPart(node)
        && !qxNodeUtils::isFoundByName(node);
    return node->getTravMask() == 0 && !goesWithNode;
}

/// A place above one node that does not move it shows as if it were not there.
bool isNothing(const osg::NodePtr &node)
{
    if (osg::getName(node) || node->getNChildren() != 1 || node->getTravMask() == 0)
        return false;
    const auto place = osg::TransformPtr::dcast(node->getCore());
    const bool isStill = place != osg::NullFC && place->getMatrix() == osg::Matrix::identity()
        && osg::SwitchComponentTransformPtr::dcast(place) == osg::NullFC;
    return isStill || node->getCore()->getType() == osg::Group::getClassType();
}

/// A geometry with a name, or among the children of a switch, comes back as a group with a part
/// below it, which shows the same.
void Lines::write(const osg::NodePtr &node, int depth)
{
    if (node == osg::NullFC)
        return;
    if (isNothing(node))
        return write(node->getChild(0), depth);
    const std::string indent(std::size_t(depth), ' ');
    const bool isPart = osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC;
    const bool inSwitch = node->getParent() != osg::NullFC
        && osg::SwitchPtr::dcast(node->getParent()->getCore()) != osg::NullFC;
    const bool isNamedPart = isPart && (inSwitch || osg::getName(node));
    const osg::Char8 *const own = osg::getName(node);
    const osg::Char8 *const name = own || !isNamedPart ? own : osg::getName(node->getCore());
    m_text << indent << "Node '" << (name ? name : "") << '\'';
    m_text << (isHidden(node) ? " hidden" : "");
    if (!isNamedPart)
        write(node->getCore());
    writePoses(node);
    m_text << '\n';
    for (const osg::NodePtr &child : childrenOf(node))
        write(child, depth + 1);
    if (!isNamedPart)
        return;
    m_text << indent << " Node ''";
    write(node->getCore());
    m_text << '\n';
}

void Lines::writeRest()
{
    const qxUberCameraPool &cameras = *qxUberCameraPool::the();
    for (int id = 0; id < cameras.count(); ++id) {
        const qxUberCamera &camera = *cameras.get(id);
        m_text << "viewpoint '" << camera.name << "' " << camera.fieldOfView << ' ' << camera.height
               << ' ' << camera.nearPlane << ' ' << camera.farPlane;
        write(camera.toWorld);
        m_text << '\n';
    }
    for (const std::string &clip : qxAnimManager::the()->clips())
        m_text << "clip '" << clip << "'\n";
    const qxFindCache cache(true);
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        const qxShownState state = variant.shown();
        m_text << kind.word.data() << " '" << variant.name.toStdString() << "' in '"
               << state.state().toStdString() << '\'' << (state.isHidden ? " hidden\n" : "\n");
    });
}

} // namespace

std::string shownScene()
{
    Lines lines;
    lines.writeMaterials();
    for (const osg::NodePtr &top : {qxScenegraph::getRoot(), qxOverlays::getPoolRoot(),
                                    qxScenegraph::environmentGeometrySwitch()})
        lines.write(top, 0);
    lines.writeRest();
    return lines.text();
}
