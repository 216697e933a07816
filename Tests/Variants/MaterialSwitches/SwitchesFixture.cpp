#include "SwitchesFixture.h"

#include "qxVariants.h"

#include "Core/qxModuleBus.h"
#include "qxMaterials.h"
#include "qxModuleBase.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>

SwitchesFixture::SwitchesFixture()
{
    m_busListener = qxModuleBus::addListener([this](qxMessage &message) {
        if (message.code() == qxModuleBase::MaterialsChanged)
            ++materialMessages;
    });
}

SwitchesFixture::~SwitchesFixture()
{
    qxModuleBus::removeListener(m_busListener);
}

qxVariantSet *SwitchesFixture::capture(const QString &name, Roots roots)
{
    if (roots.empty())
        roots = {qxScenegraph::getRoot()};
    qxVariantSet *set = qxVariants::findVariantSet(name);
    if (!set)
        set = qxVariants::createVariantSet(name, false, nullptr);
    qxVariants::captureVariantsFromRootNodes(set, roots, false, true, false, true, false, false,
                                             false, false);
    return set;
}

void SwitchesFixture::select(const QString &name)
{
    qxVariants::findVariantSet(name)->select(true, false);
}

void SwitchesFixture::expectShown(const QString &name, const std::vector<TestNode> &nodes,
                                  const std::vector<std::string> &materials)
{
    select(name);
    EXPECT_EQ(shownOn(nodes), materials) << "set " << name.toStdString();
}

QString SwitchesFixture::snapshot(const QString &set, const QString &path)
{
    return qxVariants::findVariantSet(set)->materialSnapshots.value(path, "(none)");
}

QString SwitchesFixture::state(const QString &set, const QString &variant)
{
    const qxVariantState *found = qxVariants::findVariantSet(set)->findMaterialVariant(variant);
    return found ? found->state : QString("(none)");
}

void SwitchesFixture::paint(const osg::NodePtr &node, const osg::MaterialPtr &material)
{
    qxVariants::changeMaterial(node, material);
}

std::string SwitchesFixture::materialOf(const osg::NodePtr &node)
{
    return qxMaterials::getName(qxNodeUtils::getMaterial(node));
}

std::string SwitchesFixture::shownOn(const osg::NodePtr &node)
{
    osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
    while (osg::SwitchMaterialPtr::dcast(material) != osg::NullFC)
        material = osg::SwitchMaterialPtr::dcast(material)->getCurrentMaterial();
    return qxMaterials::getName(material);
}

std::vector<std::string> SwitchesFixture::shownOn(const std::vector<TestNode> &nodes)
{
    std::vector<std::string> shown;
    for (const TestNode &node : nodes)
        shown.push_back(shownOn(node.node()));
    return shown;
}

std::vector<std::string> SwitchesFixture::heldOn(const osg::NodePtr &node)
{
    std::vector<std::string> held;
    const auto choices = osg::SwitchMaterialPtr::dcast(qxNodeUtils::getMaterial(node));
    if (choices == osg::NullFC)
        return held;
    for (const osg::MaterialPtr &material : choices->getMaterials())
        held.push_back(qxMaterials::getName(material));
    return held;
}

void SwitchesFixture::choose(const osg::NodePtr &node, const std::string &material)
{
    const std::vector<std::string> held = heldOn(node);
    const auto found = std::find(held.begin(), held.end(), material);
    ASSERT_NE(found, held.end()) << material;
    TestMaterial(qxNodeUtils::getMaterial(node)).choose(unsigned(found - held.begin()));
}
