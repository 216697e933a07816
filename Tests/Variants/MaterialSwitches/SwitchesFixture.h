#pragma once

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>

/// A scene whose materials are captured into sets, changed, and brought back.
class SwitchesFixture : public HostFixture {
protected:
    typedef std::vector<std::string> Names;
    typedef std::vector<TestNode> Nodes;

    /// A geometry with the material of that name.
    TestNode addBody(const std::string &name, const std::string &material)
    {
        return scene.addGeometry(name, scene.material(material));
    }
    /// Gives the material of that name to the nodes' material groups and geometries.
    void paint(const Nodes &nodes, const std::string &name)
    {
        for (const TestNode &node : nodes)
            qxVariants::changeMaterial(node, scene.material(name));
    }

    /// Captures the materials of the scene into the set of that name, a new one when there is none;
    /// the nodes are painted with the material before.
    qxVariantSet *capture(const QString &name, const Nodes &nodes = {},
                          const std::string &material = {})
    {
        paint(nodes, material);
        qxVariantSet *set = qxVariants::findVariantSet(name);
        if (!set)
            set = qxVariants::createVariantSet(name, false, nullptr);
        qxVariants::captureVariantsFromRootNodes(set, {qxScenegraph::getRoot()}, false, true, false,
                                                 true, false, false, false, false);
        return set;
    }
    /// Applies the set.
    static void select(const QString &set) { qxVariants::findVariantSet(set)->select(true, false); }
    /// Applies the set, which brings these materials back.
    static void expectShown(const QString &name, const Nodes &nodes, const Names &materials)
    {
        select(name);
        EXPECT_EQ(shownOn(nodes), materials) << "set " << name.toStdString();
    }
    /// The set's snapshot entry for that path; "(none)" without one.
    static QString snapshot(const QString &set, const QString &path)
    {
        return qxVariants::findVariantSet(set)->materialSnapshots.value(path, "(none)");
    }
    /// What the set chooses in the material variant; "(none)" when nothing.
    static QString state(const QString &set, const QString &variant)
    {
        const qxVariantState *found = qxVariants::findVariantSet(set)->findMaterialVariant(variant);
        return found ? found->state : QString("(none)");
    }

    /// The name of the node's material.
    static std::string materialOf(const osg::NodePtr &node)
    {
        return qxMaterials::getName(qxNodeUtils::getMaterial(node));
    }
    /// The names of the materials that the nodes show: what their switch materials choose.
    static Names shownOn(const Nodes &nodes)
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
    /// The names of what the node's switch material holds, empty for another material.
    static Names heldOn(const osg::NodePtr &node)
    {
        return TestMaterial(qxNodeUtils::getMaterial(node)).held();
    }
    /// Chooses that material in the node's switch material.
    static void choose(const osg::NodePtr &node, const std::string &material)
    {
        const Names held = heldOn(node);
        const auto found = std::find(held.begin(), held.end(), material);
        ASSERT_NE(found, held.end()) << material;
        TestMaterial(qxNodeUtils::getMaterial(node)).choose(unsigned(found - held.begin()));
    }
};
