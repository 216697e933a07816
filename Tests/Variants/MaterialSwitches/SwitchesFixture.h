#pragma once

#include "qxVariantSet.h"
#include "qxVariants.h"

#include "HostFixture.h"

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
    void paint(const Nodes &nodes, const std::string &name);

    /// Captures the materials of the scene into the set of that name, a new one when there is none.
    static qxVariantSet *capture(const QString &name);
    /// Applies the set.
    static void select(const QString &name);
    /// Applies the set, which brings these materials back.
    static void expectShown(const QString &name, const Nodes &nodes, const Names &materials);
    /// The set's snapshot entry for that path; "(none)" without one.
    static QString snapshot(const QString &set, const QString &path);
    /// What the set chooses in the material variant; "(none)" when nothing.
    static QString state(const QString &set, const QString &variant);

    /// The name of the node's material.
    static std::string materialOf(const osg::NodePtr &node);
    /// The names of the materials that the nodes show: what their switch materials choose.
    static Names shownOn(const Nodes &nodes);
    /// The names of what the node's switch material holds, empty for another material.
    static Names heldOn(const osg::NodePtr &node);
    /// Chooses that material in the node's switch material.
    static void choose(const osg::NodePtr &node, const std::string &material);
};
