#include "SwitchesFixture.h"

#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>

void SwitchesFixture::paint(const Nodes &nodes, const std::string &name)
{
    for (const TestNode &node : nodes)
        qxVariants::changeMaterial(node, scene.material(name));
}

qxVariantSet *SwitchesFixture::capture(const QString &name)
{
    qxVariantSet *set = qxVariants::findVariantSet(name);
    if (!set)
        set = qxVariants::createVariantSet(name, false, nullptr);
    qxVariants::captureVariantsFromRootNodes(set, {qxScenegraph::getRoot()}, false, true, false,
                                             true, false, false, false, false);
    return set;
}

void SwitchesFixture::select(const QString &name)
{
    qxVariants::findVariantSet(name)->select(true, false);
}

void SwitchesFixture::expectShown(const QString &name, const Nodes &nodes, const Names &materials)
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

std::string SwitchesFixture::materialOf(const osg::NodePtr &node)
{
    return qxMaterials::getName(qxNodeUtils::getMaterial(node));
}

SwitchesFixture::Names SwitchesFixture::shownOn(const Nodes &nodes)
{
    Names shown;
    for (const TestNode &node : nodes) {
        osg::MaterialPtr material = qxNodeUtils::getMaterial(node);
        while (osg::SwitchMaterialPtr::dcast(material) != osg::NullFC)
            material = osg::SwitchMaterialPtr::dcast(material)->getCurrentMaterial();
        shown.push_back(qxMaterials::getName(material));
    }
    return shown;
}

SwitchesFixture::Names SwitchesFixture::heldOn(const osg::NodePtr &node)
{
    return TestMaterial(qxNodeUtils::getMaterial(node)).held();
}

void SwitchesFixture::choose(const osg::NodePtr &node, const std::string &material)
{
    const Names held = heldOn(node);
    const auto found = std::find(held.begin(), held.end(), material);
    ASSERT_NE(found, held.end()) << material;
    TestMaterial(qxNodeUtils::getMaterial(node)).choose(unsigned(found - held.begin()));
}
