#pragma once

#include "qxVariantSet.h"

#include "HostFixture.h"

/// A scene whose materials are captured into sets, changed, and brought back.
class SwitchesFixture : public HostFixture {
protected:
    typedef std::vector<qxNodePtr> Roots;

    SwitchesFixture();
    ~SwitchesFixture() override;

    /// Captures the materials of the scene, or of what is below these nodes, into the set of that
    /// name, which is made when it is new.
    qxVariantSet *capture(const QString &name, Roots roots = {});
    /// Applies the set.
    void select(const QString &name);
    /// Applies the set, which brings these materials back.
    void expectShown(const QString &name, const std::vector<TestNode> &nodes,
                     const std::vector<std::string> &materials);
    /// The set's snapshot entry for that path; "(none)" without one.
    static QString snapshot(const QString &set, const QString &path);
    /// What the set chooses in the material variant; "(none)" when nothing.
    static QString state(const QString &set, const QString &variant);

    /// Gives the material to the node's material group or geometry.
    static void paint(const osg::NodePtr &node, const osg::MaterialPtr &material);
    /// The name of the node's material.
    static std::string materialOf(const osg::NodePtr &node);
    /// The name of the material that the node shows: what its switch material chooses.
    static std::string shownOn(const osg::NodePtr &node);
    static std::vector<std::string> shownOn(const std::vector<TestNode> &nodes);
    /// The names of what the node's switch material holds, empty for another material.
    static std::vector<std::string> heldOn(const osg::NodePtr &node);
    /// Chooses that material in the node's switch material.
    static void choose(const osg::NodePtr &node, const std::string &material);

    int materialMessages = 0; ///< how often the other modules heard that materials changed

private:
    int m_busListener = 0;
};
