#include "qxSceneRecord.h"

#include "Cameras/qxMainView.h"
#include "Files/qxSceneFile.h"
#include "OSGUberLight.h"
#include "Render/qxRenderer.h"
#include "Scene/qxClipping.h"
#include "qxNames.h"
#include "qxNodeWalk.h"
#include "qxSceneJson.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>
#include <OpenSG/OSGTransform.h>

#include <map>

namespace {

/// What holds for a node from those above it.
struct Place {
    osg::NodePtr node;
    osg::Matrix above;
    bool isShown;
    osg::MaterialPtr material; ///< of the outermost group; null for none
};

bool isChosen(const osg::NodePtr &node, std::size_t child)
{
    const osg::SwitchPtr choices = osg::SwitchPtr::dcast(node->getCore());
    if (choices == osg::NullFC || choices->getChoice() == osg::Switch::ALL)
        return true;
    return choices->getChoice() >= 0 && std::size_t(choices->getChoice()) == child;
}

/// The one that is drawn; null for a choice out of range.
osg::MaterialPtr shownMaterial(osg::MaterialPtr material)
{
    osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(material);
    while (choices != osg::NullFC) {
        const bool isThere = choices->getChoice() < choices->getMaterials().size();
        material = isThere ? choices->getMaterials()[choices->getChoice()] : osg::MaterialPtr();
        choices = osg::SwitchMaterialPtr::dcast(material);
    }
    return material;
}

/// Gathers the records of nodes.
class NodeRecords {
public:
    explicit NodeRecords(const qxSceneFile &file) : m_file(file) {}

    void add(const osg::NodePtr &top)
    {
        if (top == osg::NullFC)
            return;
        qxWalkTree(std::vector<Place>{{top, osg::Matrix(), true, osg::MaterialPtr()}},
                   [this](Place place, std::vector<Place> &below) {
                       enter(place);
                       const osg::MFNodePtr &children = *place.node->getMFChildren();
                       for (std::size_t i = 0; i < children.size(); ++i)
                           below.push_back({children[i], place.above,
                                            place.isShown && isChosen(place.node, i),
                                            place.material});
                   });
    }
    QJsonArray json() const
    {
        QJsonArray list;
        for (const auto &[number, known] : m_nodes) {
            QJsonObject node = known.json;
            node[QStringLiteral("node")] = number;
            QJsonArray parts;
            for (const auto &[place, part] : known.parts) {
                while (parts.size() < place)
                    parts += QJsonObject{{QStringLiteral("shown"), false},
                                         {QStringLiteral("material"), QString()}};
                parts += part;
            }
            if (!parts.isEmpty())
                node[QStringLiteral("parts")] = parts;
            list += node;
        }
        return list;
    }

private:
    struct Known {
        QJsonObject json;
        std::map<int, QJsonObject> parts;
    };

    /// Of the nodes that stand for one of the file the innermost is the last one.
    void enter(Place &place)
    {
        const osg::NodePtr &node = place.node;
        const osg::NodeCorePtr core = node->getCore();
        place.isShown = place.isShown && node->getTravMask() != 0;
        const osg::TransformPtr transform = osg::TransformPtr::dcast(core);
        if (transform != osg::NullFC)
            place.above.mult(transform->getMatrix());
        const osg::MaterialGroupPtr group = osg::MaterialGroupPtr::dcast(core);
        if (group != osg::NullFC && place.material == osg::NullFC
            && !qxMaterials::getIgnoreMaterialGroup(node))
            place.material = group->getMaterial();
        const qxFilePlace found = m_file.placeOf(node);
        if (found.node < 0)
            return;
        if (found.part >= 0)
            m_nodes[found.node].parts[found.part] = partOf(place);
        else
            describe(place, m_nodes[found.node].json);
    }
    static QJsonObject partOf(const Place &place)
    {
        const auto part = osg::GeometryPtr::dcast(place.node->getCore());
        const osg::MaterialPtr worn =
            place.material == osg::NullFC ? part->getMaterial() : place.material;
        return {{QStringLiteral("shown"), place.isShown},
                {QStringLiteral("material"), qxNames::nameOf(shownMaterial(worn))}};
    }
    static void describe(const Place &place, QJsonObject &json)
    {
        const osg::Char8 *const name = osg::getName(place.node);
        json[QStringLiteral("name")] = qxText::fromUtf8(name ? name : "");
        json[QStringLiteral("shown")] = place.isShown;
        json[QStringLiteral("matrix")] = qxSceneJson::matrix(place.above);
        const auto light = osg::UberLightPtr::dcast(place.node->getCore());
        if (light != osg::NullFC)
            json[QStringLiteral("light")] = light->getOn();
    }

    const qxSceneFile &m_file;
    std::map<int, Known> m_nodes; ///< by their numbers
};

QJsonArray shownEnvironments(const qxSceneFile &file)
{
    QJsonArray shown;
    const osg::NodePtr choices = qxScenegraph::environmentGeometrySwitch();
    if (choices == osg::NullFC || choices->getTravMask() == 0)
        return shown;
    const osg::MFNodePtr &children = *choices->getMFChildren();
    for (std::size_t i = 0; i < children.size(); ++i) {
        const int node = file.placeOf(children[i]).node;
        if (node >= 0 && children[i]->getTravMask() != 0 && isChosen(choices, i))
            shown += node;
    }
    return shown;
}

} // namespace

QJsonObject qxSceneRecord::take(const qxSceneFile &file)
{
    NodeRecords nodes(file);
    for (const osg::NodePtr &top : {qxScenegraph::getRoot(), qxOverlays::getPoolRoot(),
                                    qxScenegraph::environmentGeometrySwitch()})
        nodes.add(top);
    return {{QStringLiteral("nodes"), nodes.json()},
            {QStringLiteral("camera"), qxSceneJson::camera(camera())},
            {QStringLiteral("environment"), shownEnvironments(file)},
            {QStringLiteral("clipping"), qxSceneJson::clipping(qxClipping::the())}};
}

qxUberCamera qxSceneRecord::camera()
{
    const auto showsSomething = [](const qxUberCamera &camera) {
        return camera.fieldOfView > 0 || camera.height > 0;
    };
    const qxUberCamera &present = qxMainView::the().camera;
    if (showsSomething(present))
        return present;
    const qxUberCamera *const first = qxUberCameraPool::the()->get(0);
    if (first && showsSomething(*first))
        return *first;
    return qxRenderer().view(qxPictureSettings()).camera;
}
