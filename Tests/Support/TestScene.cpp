#include "TestScene.h"

#include "Materials/qxSurface.h"
#include "OSGOverlayCore.h"
#include "OSGSwitchComponentTransform.h"
#include "OSGUberLight.h"
#include "Scene/qxScene.h"
#include "Scene/qxTransformStates.h"
#include "qxAnimManager.h"
#include "qxMaterials.h"
#include "qxOverlays.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleMaterial.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <stdexcept>

namespace {

/// The object as a switch of that type; anything else ends the test.
template <class Switch, class Object>
Switch asSwitch(const Object &object, const std::string &name)
{
    const Switch found = Switch::dcast(object);
    if (found == osg::NullFC)
        throw std::logic_error(name + " is no switch");
    return found;
}

template <class Switch, class Choice>
void setChoice(const typename Switch::Ptr &object, Choice choice)
{
    const osg::CPEditor edit(object, Switch::ChoiceFieldMask);
    object->setChoice(choice);
}

TestNode place(const osg::NodePtr &node, const osg::NodePtr &parent)
{
    const osg::NodePtr above = parent == osg::NullFC ? qxScenegraph::getRoot() : parent;
    const osg::CPEditor edit(above, osg::Node::ChildrenFieldMask);
    above->addChild(node);
    return node;
}

TestNode append(const std::string &name, const osg::NodeCorePtr &core, const osg::NodePtr &parent)
{
    const osg::NodePtr node = osg::makeNodeFor(core);
    if (!name.empty())
        osg::setName(node, name);
    return place(node, parent);
}

TestMaterial addToPool(const std::string &name, const osg::MaterialPtr &material)
{
    if (!name.empty())
        osg::setName(material, name);
    const osg::MaterialPoolPtr pool = qxScenegraph::getMaterialPool();
    const osg::CPEditor edit(pool, osg::MaterialPool::MaterialsFieldMask);
    pool->add(material);
    return material;
}

/// The clone's own names, which the scene graph leaves out.
void copyNames(const osg::NodePtr &from, const osg::NodePtr &to)
{
    if (const osg::Char8 *name = osg::getName(from))
        osg::setName(to, std::string(name));
    for (osg::UInt32 i = 0; i < from->getNChildren(); ++i)
        copyNames(from->getChild(i), to->getChild(i));
}

osg::Matrix movedAlongX(unsigned int distance)
{
    osg::Matrix matrix;
    matrix.setTranslate(osg::Real32(distance), 0, 0);
    return matrix;
}

template <class Core>
typename Core::Ptr coreWith(const osg::MaterialPtr &material)
{
    const typename Core::Ptr core = Core::create();
    const osg::CPEditor edit(core, Core::MaterialFieldMask);
    core->setMaterial(material);
    return core;
}

} // namespace

int TestNode::choice() const
{
    const auto transform = osg::SwitchComponentTransformPtr::dcast(core());
    return transform != osg::NullFC ? int(transform->getChoice())
                                    : asSwitch<osg::SwitchPtr>(core(), name())->getChoice();
}

const TestNode &TestNode::choose(int choice) const
{
    const auto transform = osg::SwitchComponentTransformPtr::dcast(core());
    if (transform != osg::NullFC)
        setChoice<osg::SwitchComponentTransform>(transform, osg::UInt32(choice));
    else
        setChoice<osg::Switch>(asSwitch<osg::SwitchPtr>(core(), name()), choice);
    return *this;
}

const TestNode &TestNode::setMask(osg::UInt32 mask) const
{
    const osg::CPEditor edit(m_node, osg::Node::TravMaskFieldMask);
    m_node->setTravMask(mask);
    return *this;
}

void TestNode::remove() const
{
    const osg::NodePtr parent = m_node->getParent();
    osg::NodePtr gone = m_node;
    const osg::CPEditor edit(parent, osg::Node::ChildrenFieldMask);
    parent->subChild(gone);
}

void TestNode::moveTo(const osg::NodePtr &parent) const
{
    const osg::CPEditor edit(parent, osg::Node::ChildrenFieldMask);
    parent->addChild(m_node);
}

std::string TestMaterial::name() const
{
    return qxMaterials::getName(m_material);
}

unsigned int TestMaterial::choice() const
{
    return asSwitch<osg::SwitchMaterialPtr>(m_material, name())->getChoice();
}

const TestMaterial &TestMaterial::choose(unsigned int choice) const
{
    setChoice<osg::SwitchMaterial>(asSwitch<osg::SwitchMaterialPtr>(m_material, name()), choice);
    return *this;
}

std::vector<std::string> TestMaterial::held() const
{
    std::vector<std::string> names;
    const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(m_material);
    if (choices != osg::NullFC) {
        for (const osg::MaterialPtr &each : choices->getMaterials())
            names.push_back(qxMaterials::getName(each));
    }
    return names;
}

TestNode TestScene::add(const std::string &name, const osg::NodePtr &parent)
{
    return append(name, osg::Group::create(), parent);
}

TestNode TestScene::addTransform(const std::string &name, const osg::NodePtr &parent)
{
    return append(name, osg::ComponentTransform::create(), parent);
}

TestNode TestScene::addSwitch(const std::string &name, const Names &children,
                              const osg::NodePtr &parent)
{
    const TestNode node = append(name, osg::Switch::create(), parent);
    for (const std::string &child : children)
        add(child, node);
    return node;
}

TestNode TestScene::addTransformSwitch(const std::string &name, unsigned int count,
                                       const osg::NodePtr &parent)
{
    const osg::SwitchComponentTransformPtr core = osg::SwitchComponentTransform::create();
    {
        const osg::CPEditor edit(core, osg::SwitchComponentTransform::StatesFieldMask);
        for (unsigned int i = 0; i < count; ++i)
            core->getStates().push_back(movedAlongX(i));
    }
    return append(name, core, parent);
}

TestNode TestScene::addPoses(const std::string &name, const Names &states,
                             const osg::NodePtr &parent)
{
    const TestNode node = addTransform(name, parent);
    std::vector<qxTransformState> poses;
    for (const std::string &state : states)
        poses.push_back({state, movedAlongX(unsigned(poses.size()))});
    qxTransformStates::set(node, poses, 0);
    return node;
}

TestNode TestScene::addGeometry(const std::string &name, const osg::MaterialPtr &material,
                                const osg::NodePtr &parent)
{
    return append(name, coreWith<osg::Geometry>(material), parent);
}

TestNode TestScene::addMaterialGroup(const std::string &name, const osg::MaterialPtr &material,
                                     const osg::NodePtr &parent)
{
    return append(name, coreWith<osg::MaterialGroup>(material), parent);
}

TestNode TestScene::addLight(const std::string &name, const osg::NodePtr &parent)
{
    return append(name, osg::UberLight::create(), parent);
}

TestNode TestScene::addClone(const osg::NodePtr &node, const osg::NodePtr &parent)
{
    const osg::NodePtr clone = osg::cloneTree(node);
    copyNames(node, clone);
    return place(clone, parent);
}

TestNode TestScene::addOverlay(const std::string &name)
{
    return append(name, osg::OverlayCore::create(), qxOverlays::getPoolRoot());
}

TestNode TestScene::addOverlaySwitch(const std::string &name, const Names &children)
{
    return addSwitch(name, children, qxOverlays::getPoolRoot());
}

TestNode TestScene::addEnvironments(const std::string &name, const Names &children)
{
    const osg::NodePtr node = osg::makeNodeFor(osg::Switch::create());
    osg::setName(node, name);
    qxScene::current()->setEnvironment(node);
    for (const std::string &child : children)
        add(child, node);
    return node;
}

TestMaterial TestScene::material(const std::string &name)
{
    const osg::MaterialPtr known = qxMaterials::findMaterial(name.c_str());
    return known == osg::NullFC ? addMaterial(name) : TestMaterial(known);
}

TestMaterial TestScene::addMaterial(const std::string &name)
{
    return addToPool(name, osg::MaterialPtr(osg::SimpleMaterial::create()));
}

TestMaterial TestScene::addEnvironmentMaterial(const std::string &name)
{
    const TestMaterial material = addMaterial(name);
    qxSurface surface;
    surface.environment = true;
    surface.setTo(material);
    return material;
}

TestMaterial TestScene::addSwitchMaterial(const std::string &name, const Names &materials)
{
    const osg::SwitchMaterialPtr choices = osg::SwitchMaterial::create();
    for (const std::string &contained : materials) {
        const osg::MaterialPtr held = material(contained);
        const osg::CPEditor edit(choices, osg::SwitchMaterial::MaterialsFieldMask);
        choices->addMaterial(held);
    }
    return addToPool(name, osg::MaterialPtr(choices));
}

int TestScene::addViewpoint(const std::string &name, float x)
{
    qxUberCamera camera;
    camera.name = name;
    camera.fieldOfView = 0.8f;
    camera.toWorld.setTranslate(x, 0, 0);
    return qxUberCameraPool::the()->add(camera);
}

void TestScene::setClips(const Names &names)
{
    qxAnimManager::the()->setClips(names);
}
