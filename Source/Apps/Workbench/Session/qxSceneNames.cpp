#include "qxSceneNames.h"

#include "qxMaterialParts.h"
#include "qxMaterials.h"
#include "qxNodeUtils.h"
#include "qxOverlays.h"
#include "qxText.h"
#include "qxUberCameraPool.h"

#include <QCryptographicHash>

namespace {

const QString nodesKey = QStringLiteral("nodes");
const QString materialsKey = QStringLiteral("materials");
const QString statesKey = QStringLiteral("transformStates");
const QString switchesKey = QStringLiteral("materialChoices");
const QString fingerprintKey = QStringLiteral("ofScene");
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

template <class Objects, class Visit>
void visitPlaces(const Objects &objects, const QJsonObject &values, const Visit &visit)
{
    for (auto each = values.begin(); each != values.end(); ++each) {
        bool isNumber = false;
        const uint place = each.key().toUInt(&isNumber);
        if (isNumber && place < objects.size())
            visit(objects[place].get(), *each);
    }
}

std::string nodeName(const osg::NodePtr &node)
{
    return qxNodeUtils::getName(node);
}

QJsonArray stateNames(const osg::NodePtr &node)
{
    QJsonArray names;
    for (int index = 0; index < qxNodeUtils::getTransformVariantCount(node); ++index)
        names.append(qxText::fromUtf8(qxNodeUtils::getTransformVariantName(node, index)));
    return names;
}

void giveStateNames(const osg::NodePtr &node, const QJsonArray &names)
{
    for (int index = 0; index < names.size(); ++index)
        qxNodeUtils::setTransformVariantName(node, index, qxText::toUtf8(names[index].toString()));
}

std::vector<qxNodePtr> allNodes()
{
    std::vector<qxNodePtr> nodes = qxNodeUtils::getSceneNodes();
    const std::vector<qxNodePtr> overlays = qxNodeUtils::getSubTreeNodes(qxOverlays::getPoolRoot());
    nodes.insert(nodes.end(), overlays.begin(), overlays.end());
    return nodes;
}

std::string materialName(const osg::MaterialPtr &material)
{
    return qxMaterials::getName(material);
}

} // namespace

qxSceneNames qxSceneNames::take()
{
    qxSceneNames names;
    for (const qxNodePtr &node : allNodes()) {
        names.m_nodes.push_back(osg::NodeRefPtr(node));
        names.m_nodeNames.push_back(nodeName(node));
        names.m_stateNames.push_back(stateNames(node));
    }
    for (const osg::MaterialPtr &material : qxMaterialParts::all()) {
        names.m_materials.push_back(osg::MaterialRefPtr(material));
        names.m_materialNames.push_back(materialName(material));
    }
    names.m_choices = qxSceneChoices(names.m_nodes, names.m_materials);
    names.m_viewpoints = viewpointsNow();
    return names;
}

/// Of what was in the file, to tell whether places mean the same.
QString qxSceneNames::fingerprint() const
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (const std::vector<std::string> *names : {&m_nodeNames, &m_materialNames}) {
        hash.addData(QByteArray::number(int(names->size())));
        for (const std::string &name : *names)
            hash.addData(name.c_str(), int(name.size()) + 1);
    }
    return QString::fromLatin1(hash.result().toHex());
}

QJsonObject qxSceneNames::changes() const
{
    QJsonObject changes;
    const QJsonObject nodes = otherNames(m_nodes, m_nodeNames, nodeName);
    const QJsonObject materials = otherNames(m_materials, m_materialNames, materialName);
    const QJsonArray viewpoints = viewpointsNow();
    const QJsonObject choices = m_choices.changes();
    QJsonObject states;
    for (std::size_t place = 0; place < m_nodes.size(); ++place) {
        const QJsonArray now = stateNames(m_nodes[place].get());
        if (now != m_stateNames[place])
            states.insert(QString::number(place), now);
    }
    if (!states.isEmpty())
        changes.insert(statesKey, states);
    if (!choices.isEmpty())
        changes.insert(switchesKey, choices);
    if (!nodes.isEmpty())
        changes.insert(nodesKey, nodes);
    if (!materials.isEmpty())
        changes.insert(materialsKey, materials);
    if (viewpoints != m_viewpoints)
        changes.insert(viewpointsKey, viewpoints);
    if (!changes.isEmpty())
        changes.insert(fingerprintKey, fingerprint());
    return changes;
}

bool qxSceneNames::apply(const QJsonObject &changes) const
{
    if (changes.isEmpty())
        return true;
    if (changes[fingerprintKey].toString() != fingerprint())
        return false;
    visitPlaces(m_nodes, changes[nodesKey].toObject(),
                [](const osg::NodePtr &node, const QJsonValue &name) {
                    qxNodeUtils::setName(node, qxText::toUtf8(name.toString()), false, osg::NullFC);
                });
    visitPlaces(m_nodes, changes[statesKey].toObject(),
                [](const osg::NodePtr &node, const QJsonValue &names) {
                    giveStateNames(node, names.toArray());
                });
    visitPlaces(m_materials, changes[materialsKey].toObject(),
                [](const osg::MaterialPtr &material, const QJsonValue &name) {
                    const std::string text = qxText::toUtf8(name.toString());
                    qxMaterials::setName(material, text.c_str(), true);
                });
    m_choices.apply(changes[switchesKey].toObject());
    if (!changes.contains(viewpointsKey))
        return true;
    qxUberCameraPool::the()->clear();
    for (const QJsonValue &each : changes[viewpointsKey].toArray())
        qxUberCameraPool::the()->add(cameraOf(each.toObject()));
    return true;
}
