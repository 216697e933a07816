#include "RandomScene.h"

#include "Cameras/qxMainView.h"
#include "Scene/qxTransformStates.h"
#include "SeenFixture.h"
#include "qxLights.h"
#include "qxMaterials.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

bool isSwitch(const osg::NodePtr &node)
{
    return osg::SwitchPtr::dcast(node->getCore()) != osg::NullFC;
}

} // namespace

RandomScene::RandomScene(unsigned int seed) : m_random(seed)
{
    m_parents.push_back(m_scene.root());
    addMaterials();
    const int count = 10 + below(40);
    for (int i = 0; i < count; ++i)
        addNode();
}

std::string RandomScene::freeName(const std::string &base)
{
    return base + std::to_string(m_names++);
}

void RandomScene::addMaterials()
{
    for (const char *name : {"Red", "Blue", "Grün", "a/b", "\"Silk\""})
        m_plain.push_back(m_scene.addMaterial(name));
    m_switches.push_back(m_scene.addSwitchMaterial("Paints", {"Red", "Blue", "Grün"}));
    m_switches.push_back(m_scene.addSwitchMaterial("Cloth", {"a/b", "\"Silk\""}));
    m_switches.push_back(m_scene.addSwitchMaterial("Nested", {"Red", "Cloth"}));
}

osg::MaterialPtr RandomScene::someMaterial()
{
    const int index = below(int(m_plain.size() + m_switches.size()));
    const int plain = int(m_plain.size());
    return index < plain ? m_plain[std::size_t(index)] : m_switches[std::size_t(index - plain)];
}

void RandomScene::addNode()
{
    const osg::NodePtr parent = someParent();
    const std::string step = std::to_string(parent->getNChildren()); // unlike its siblings
    osg::NodePtr node;
    switch (below(8)) {
    case 0:
        node = m_scene.addSwitch(freeName("Switch "), {"One", "Zwei", "a\\b"}, parent);
        break;
    case 1:
        node = m_scene.addLight(freeName("Lamp "), parent);
        break;
    case 2:
        node = m_scene.addPoses(freeName("Lid "), {"Closed", "Open", "Ajar"}, parent);
        break;
    case 3:
        node = m_scene.addMaterialGroup("Group \"" + step, someMaterial(), parent);
        break;
    case 4:
    case 5:
        node = m_scene.addGeometry("Tür " + step, someMaterial(), parent);
        break;
    default:
        node = m_scene.add("Part/" + step, parent);
    }
    const bool isGeometry = osg::GeometryPtr::dcast(node->getCore()) != osg::NullFC;
    if (!isGeometry)
        m_parents.push_back(node);
    if (isGeometry && below(4) == 0)
        m_scene.addClone(node, parent);
    else
        m_nodes.push_back(node);
}

void RandomScene::shuffle()
{
    for (const osg::NodePtr &node : m_nodes) {
        const TestNode handle(node);
        handle.setMask(below(6) == 0 ? 0 : 0xFFFFFFFF);
        if (isSwitch(node))
            handle.choose(below(int(node->getNChildren()) + 3) - 2); // from all to out of range
        if (qxLights::isLight(node))
            qxLights::setOn(node, below(2) == 0);
        qxTransformStates::select(node, below(3));
        qxMaterials::setIgnoreMaterialGroup(node, below(2) == 0);
    }
    for (const osg::MaterialPtr &material : m_switches)
        TestMaterial(material).choose(
            unsigned(below(int(osg::SwitchMaterialPtr::dcast(material)->getMaterials().size()))));
    qxMainView::the().camera.fieldOfView = 0.5f;
    qxMainView::the().camera.toWorld.setTranslate(float(below(100)), 0, 0);
}

void RandomScene::paint()
{
    for (const auto &each : activeNodes()) {
        if (qxNodeUtils::getMaterial(each.second) == osg::NullFC || below(7) != 0)
            continue;
        qxNodeUtils::setMaterial(each.second, m_plain[std::size_t(below(int(m_plain.size())))],
                                 false, true);
    }
}
