#pragma once

#include "qxNodeUtils.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGMaterial.h>

#include <string>
#include <vector>

/// A node of a test's scene. Copies address the same node.
class TestNode {
public:
    TestNode(const osg::NodePtr &node) : m_node(node) {}

    osg::NodePtr node() const { return m_node; }
    operator osg::NodePtr() const { return m_node; }
    osg::NodeCorePtr core() const { return m_node->getCore(); }
    /// The name by the host's rule.
    std::string name() const { return qxNodeUtils::getName(m_node); }
    TestNode child(unsigned int index) const { return m_node->getChild(index); }

    /// The choice of a switch or of a transform switch; a node that is neither fails the test.
    int choice() const;
    const TestNode &choose(int choice) const;

    /// The traversal mask: 0xFFFFFFFF shown, 0 hidden.
    osg::UInt32 mask() const { return m_node->getTravMask(); }
    const TestNode &setMask(osg::UInt32 mask) const;
    bool shown() const { return mask() == 0xFFFFFFFF; }

    /// Removes the node, with everything below it, from its parent.
    void remove() const;
    /// Moves the node to the end of another parent's children.
    void moveTo(const osg::NodePtr &parent) const;

private:
    osg::NodePtr m_node;
};

/// A material of a test's scene. Copies address the same material.
class TestMaterial {
public:
    TestMaterial(const osg::MaterialPtr &material) : m_material(material) {}

    osg::MaterialPtr material() const { return m_material; }
    operator osg::MaterialPtr() const { return m_material; }
    std::string name() const;

    /// The choice of a switch material; another material fails the test.
    unsigned int choice() const;
    const TestMaterial &choose(unsigned int choice) const;
    /// The names of what a switch material holds; none for another material.
    std::vector<std::string> held() const;

private:
    osg::MaterialPtr m_material;
};

/// Builds the scene of the running host, a node in a line. Everything is appended below the scene's
/// root unless a parent is given; all writes are bracketed. An empty name gives an unnamed node.
class TestScene {
public:
    typedef std::vector<std::string> Names;

    TestNode root() const { return qxScenegraph::getRoot(); }
    TestNode add(const std::string &name, const osg::NodePtr &parent = osg::NullFC);
    TestNode addTransform(const std::string &name, const osg::NodePtr &parent = osg::NullFC);
    /// A switch with a group of each name as its children; its choice is -1.
    TestNode addSwitch(const std::string &name, const Names &children,
                       const osg::NodePtr &parent = osg::NullFC);
    /// A transform switch with `count` states, state i moved by i along x; its choice is 0.
    TestNode addTransformSwitch(const std::string &name, unsigned int count,
                                const osg::NodePtr &parent = osg::NullFC);
    /// A transform with named transform states, state i moved by i along x; state 0 is selected.
    TestNode addPoses(const std::string &name, const Names &states,
                      const osg::NodePtr &parent = osg::NullFC);
    /// An empty geometry.
    TestNode addGeometry(const std::string &name, const osg::MaterialPtr &material = osg::NullFC,
                         const osg::NodePtr &parent = osg::NullFC);
    TestNode addMaterialGroup(const std::string &name, const osg::MaterialPtr &material,
                              const osg::NodePtr &parent = osg::NullFC);
    /// A point light that is on.
    TestNode addLight(const std::string &name, const osg::NodePtr &parent = osg::NullFC);
    /// A second tree of nodes that shares the cores of `node` and its children, with the same
    /// names.
    TestNode addClone(const osg::NodePtr &node, const osg::NodePtr &parent = osg::NullFC);

    /// A shown overlay below the root of the overlay pool.
    TestNode addOverlay(const std::string &name);
    /// A switch of overlays below the root of the overlay pool; its choice is -1.
    TestNode addOverlaySwitch(const std::string &name, const Names &children);

    /// The scene's environment: a switch, outside of the tree, with a group of each name as its
    /// children; its choice is -1.
    TestNode addEnvironments(const std::string &name, const Names &children);

    /// The first material of that name, a new one when there is none.
    TestMaterial material(const std::string &name);
    /// A simple material in the scene's pool.
    TestMaterial addMaterial(const std::string &name);
    /// The same, marked as a material for environments.
    TestMaterial addEnvironmentMaterial(const std::string &name);
    /// A switch material in the scene's pool, holding the first material of each name; those that
    /// do not exist are added before it. Its choice is 0.
    TestMaterial addSwitchMaterial(const std::string &name, const Names &materials);

    /// A viewpoint at (x, 0, 0) looking along negative z; returns its id.
    int addViewpoint(const std::string &name, float x = 0);
    void setClips(const Names &names);
};
