#pragma once

#include "TestScene.h"

#include <random>

/// A scene, its states and its changes, made up from a seed.
///
/// Names are what the guard makes of ambiguous ones: switches, lights and posed nodes have names of
/// their own, everything else at least a path.
class RandomScene {
public:
    explicit RandomScene(unsigned int seed);

    /// Shows and hides, chooses, switches and moves at random; the camera as well.
    void shuffle();
    /// Gives every seventh visible geometry or material group another plain material.
    void paint();

private:
    typedef std::vector<osg::NodePtr> Nodes;

    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }
    std::string freeName(const std::string &base);
    osg::NodePtr someParent() { return m_parents[std::size_t(below(int(m_parents.size())))]; }
    void addNode();
    void addMaterials();
    osg::MaterialPtr someMaterial();

    std::mt19937 m_random;
    TestScene m_scene;
    int m_names = 0;
    Nodes m_parents;
    /// What may be hidden. Clones are not, and stand side by side: of them a capture sees the first
    /// one only.
    Nodes m_nodes;
    std::vector<osg::MaterialPtr> m_plain;
    std::vector<osg::MaterialPtr> m_switches;
};
