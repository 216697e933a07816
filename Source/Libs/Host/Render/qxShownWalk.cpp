#include "Render/qxShownWalk.h"

#include "Animation/qxPose.h"
#include "OSGOverlayCore.h"
#include "qxMaterials.h"
#include "qxNodeWalk.h"

#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGTransform.h>

#include <vector>

namespace {

enum class Kind : char { Unknown, Plain, Switch, Transform, MaterialGroup, Overlay, Light, Part };

Kind kindOf(const osg::FieldContainerType &type)
{
    if (type.isDerivedFrom(osg::Geometry::getClassType()))
        return Kind::Part;
    if (type.isDerivedFrom(osg::Transform::getClassType()))
        return Kind::Transform;
    if (type.isDerivedFrom(osg::Switch::getClassType()))
        return Kind::Switch;
    if (type.isDerivedFrom(osg::MaterialGroup::getClassType()))
        return Kind::MaterialGroup;
    if (type.isDerivedFrom(osg::Light::getClassType()))
        return Kind::Light;
    return type.isDerivedFrom(osg::OverlayCore::getClassType()) ? Kind::Overlay : Kind::Plain;
}

/// The walk itself.
class Walk {
public:
    explicit Walk(const qxShownListener &listener) : m_listener(listener) {}

    void run(const osg::NodePtr &root)
    {
        m_matrices.assign(1, osg::Matrix());
        qxWalkTree(
            Places{{root, {0, 0, osg::MaterialPtr()}}},
            [this](const Place &place, Places &below) { visit(place.node, place.above, below); });
    }

private:
    /// What holds for a node from those above it.
    struct Above {
        std::size_t matrix; ///< place in m_matrices
        osg::UInt32 layer;
        osg::MaterialPtr material;
    };
    struct Place {
        osg::NodePtr node;
        Above above;
    };
    typedef std::vector<Place> Places;

    void visit(const osg::NodePtr &node, Above above, Places &below)
    {
        if (node == osg::NullFC || node->getTravMask() == 0)
            return;
        const osg::NodeCorePtr core = node->getCore();
        const osg::MFNodePtr &children = *node->getMFChildren();
        const bool isPosed = takePose(node, above);
        if (core == osg::NullFC) {
            openAll(children, above, below);
            return;
        }
        const Kind kind = kindOfCore(core);
        if (kind != Kind::Transform || !isPosed)
            enter(kind, node, core, above);
        if (kind == Kind::Switch)
            openChosen(children, osg::SwitchPtr::dcast(core)->getChoice(), above, below);
        else
            openAll(children, above, below);
    }

    /// Whether a clip that plays has its own place for the node.
    bool takePose(const osg::NodePtr &node, Above &above)
    {
        if (m_pose.matrices.empty())
            return false;
        const auto posed = m_pose.matrices.find(node.getFieldContainerId());
        if (posed == m_pose.matrices.end())
            return false;
        move(posed->second, above);
        return true;
    }

    void move(const osg::Matrix &matrix, Above &above)
    {
        m_matrices.push_back(m_matrices[above.matrix]);
        m_matrices.back().mult(matrix);
        above.matrix = m_matrices.size() - 1;
    }

    void enter(Kind kind, const osg::NodePtr &node, const osg::NodeCorePtr &core, Above &above)
    {
        switch (kind) {
        case Kind::Transform:
            move(osg::TransformPtr::dcast(core)->getMatrix(), above);
            break;
        case Kind::MaterialGroup:
            if (above.material == osg::NullFC && !qxMaterials::getIgnoreMaterialGroup(node))
                above.material = osg::MaterialGroupPtr::dcast(core)->getMaterial();
            break;
        case Kind::Overlay:
            above.layer = osg::OverlayCorePtr::dcast(core)->getLayer();
            break;
        case Kind::Light:
            if (m_listener.light)
                m_listener.light(osg::LightPtr::dcast(core), m_matrices[above.matrix]);
            break;
        case Kind::Part:
            show(node, osg::GeometryPtr::dcast(core), above);
            break;
        default:
            break;
        }
    }

    void show(const osg::NodePtr &node, const osg::GeometryPtr &core, const Above &above)
    {
        const bool own = above.material == osg::NullFC;
        m_listener.part({node.getFieldContainerId(), core,
                         own ? core->getMaterial() : above.material, m_matrices[above.matrix],
                         above.layer});
    }

    static void openAll(const osg::MFNodePtr &children, const Above &above, Places &below)
    {
        for (const osg::NodePtr &child : children)
            below.push_back({child, above});
    }

    static void openChosen(const osg::MFNodePtr &children, osg::Int32 choice, const Above &above,
                           Places &below)
    {
        if (choice == osg::Switch::ALL)
            openAll(children, above, below);
        else if (choice >= 0 && std::size_t(choice) < children.size())
            below.push_back({children[std::size_t(choice)], above});
    }

    /// Asking a type for its parents is slow; there are few types and many nodes.
    Kind kindOfCore(const osg::NodeCorePtr &core)
    {
        const osg::FieldContainerType &type = core->getType();
        const std::size_t id = type.getId();
        if (id >= m_kinds.size())
            m_kinds.resize(id + 1, Kind::Unknown);
        if (m_kinds[id] == Kind::Unknown)
            m_kinds[id] = kindOf(type);
        return m_kinds[id];
    }

    const qxShownListener &m_listener;
    const qxPose &m_pose = qxPose::the();
    std::vector<osg::Matrix> m_matrices;
    std::vector<Kind> m_kinds;
};

} // namespace

void qxWalkShown(const osg::NodePtr &root, const qxShownListener &listener)
{
    Walk(listener).run(root);
}
