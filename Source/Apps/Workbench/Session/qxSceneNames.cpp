#include "qxSceneNames.h"

#include "qxMaterialParts.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxText.h"
#include "qxUberCameraPool.h"

namespace {

const QString nodesKey = QStringLiteral("nodes");
const QString materialsKey = QStringLiteral("materials");
const QString viewpointsKey = QStringLiteral("viewpoints");
const QString cameraKey = QStringLiteral("camera");
const QString lensKey = QStringLiteral("lens");
const QString placeKey = QStringLiteral("toWorld");

QJsonObject toJson(const qxUberCamera &camera)
{
    QJsonArray place;
    for (int number = 0; number < 16; ++number)
        place.append(double(camera.toWorld.getValues()[number]));
    const QJsonArray lens{double(camera.fieldOfView), double(camera.height),
                          double(camera.nearPlane), double(camera.farPlane)};
    return {{cameraKey, qxText::fromUtf8(camera.name)}, {lensKey, lens}, {placeKey, place}};
}

qxUberCamera cameraOf(const QJsonObject &json)
{
    qxUberCamera camera;
    camera.name = qxText::toUtf8(json[cameraKey].toString());
    const auto number = [](const QJsonArray &array, int at) { return float(array[at].toDouble()); };
    const QJsonArray place = json[placeKey].toArray();
    for (int column = 0; column < 4; ++column) {
        for (int row = 0; row < 4; ++row)
            camera.toWorld[osg::UInt32(column)][osg::UInt32(row)] = number(place, column * 4 + row);
    }
    const QJsonArray lens = json[lensKey].toArray();
    camera.fieldOfView = number(lens, 0);
    camera.height = number(lens, 1);
    camera.nearPlane = number(lens, 2);
    camera.farPlane = number(lens, 3);
    return camera;
}

QJsonArray viewpointsNow()
{
    QJsonArray viewpoints;
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    for (int id = 0; id < pool.count(); ++id)
        viewpoints.append(toJson(*pool.get(id)));
    return viewpoints;
}

/// The names that differ, by the places of what has them.
template <class Objects, class NameOf>
QJsonObject otherNames(const Objects &objects, const std::vector<std::string> &names,
                       const NameOf &nameOf)
{
    QJsonObject others;
    for (std::size_t place = 0; place < objects.size(); ++place) {
        const std::string name = nameOf(objects[place].get());
        if (name != names[place])
            others.insert(QString::number(place), qxText::fromUtf8(name));
    }
    return others;
}

template <class Objects, class Rename>
void giveNames(const Objects &objects, const QJsonObject &names, const Rename &rename)
{
    for (auto each = names.begin(); each != names.end(); ++each) {
        bool isNumber = false;
        const uint place = each.key().toUInt(&isNumber);
        if (isNumber && place < objects.size())
            rename(objects[place].get(), qxText::toUtf8(each->toString()));
    }
}

std::string nodeName(const osg::NodePtr &node)
{
    return qxNodeUtils::getName(node);
}

std::string materialName(const osg::MaterialPtr &material)
{
    return qxMaterials::getName(material);
}

} // namespace

qxSceneNames qxSceneNames::take()
{
    qxSceneNames names;
    for (const qxNodePtr &node : qxNodeUtils::getSceneNodes()) {
        names.m_nodes.push_back(osg::NodeRefPtr(node));
        names.m_nodeNames.push_back(nodeName(node));
    }
    for (const osg::MaterialPtr &material : qxMaterialParts::all()) {
        names.m_materials.push_back(osg::MaterialRefPtr(material));
        names.m_materialNames.push_back(materialName(material));
    }
    names.m_viewpoints = viewpointsNow();
    return names;
}

QJsonObject qxSceneNames::changes() const
{
    QJsonObject changes;
    const QJsonObject nodes = otherNames(m_nodes, m_nodeNames, nodeName);
    const QJsonObject materials = otherNames(m_materials, m_materialNames, materialName);
    const QJsonArray viewpoints = viewpointsNow();
    if (!nodes.isEmpty())
        changes.insert(nodesKey, nodes);
    if (!materials.isEmpty())
        changes.insert(materialsKey, materials);
    if (viewpoints != m_viewpoints)
        changes.insert(viewpointsKey, viewpoints);
    return changes;
}

void qxSceneNames::apply(const QJsonObject &changes) const
{
    giveNames(m_nodes, changes[nodesKey].toObject(),
              [](const osg::NodePtr &node, const std::string &name) {
                  qxNodeUtils::setName(node, name, false, osg::NullFC);
              });
    giveNames(m_materials, changes[materialsKey].toObject(),
              [](const osg::MaterialPtr &material, const std::string &name) {
                  qxMaterials::setName(material, name.c_str(), true);
              });
    if (!changes.contains(viewpointsKey))
        return;
    qxUberCameraPool::the()->clear();
    for (const QJsonValue &each : changes[viewpointsKey].toArray())
        qxUberCameraPool::the()->add(cameraOf(each.toObject()));
}
