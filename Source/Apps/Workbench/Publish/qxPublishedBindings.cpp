#include "qxPublishedBindings.h"

#include "Files/qxSceneFile.h"
#include "OSGOverlayCore.h"
#include "OSGSwitchComponentTransform.h"
#include "OSGUberLight.h"
#include "Session/qxSceneJson.h"
#include "qxLossReport.h"
#include "qxNames.h"
#include "qxNodeWalk.h"
#include "qxPlaces.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSwitch.h>
#include <OpenSG/OSGSwitchMaterial.h>

namespace {

const QString shownKey = QStringLiteral("shown");
const QString nodeKey = QStringLiteral("node");
const QString slotKey = QStringLiteral("slot");

void append(QJsonArray &conditions, const QJsonArray &more)
{
    for (const QJsonValue &each : more)
        conditions += each;
}

/// That the aspect has one of the values for which `holds` is true.
template <class Holds>
QJsonArray condition(const qxSlots &slots, const qxSceneObject &object, qxAspect aspect,
                     const Holds &holds)
{
    const int slot = slots.find(object, aspect);
    if (slot < 0)
        return holds(qxStateRules::valueOf(object, aspect)) ? QJsonArray() : qxSlots::never();
    qxSlots::Values values;
    for (const qxSlots::Value value : slots.values(slot)) {
        if (holds(value))
            values.push_back(value);
    }
    return slots.condition(slot, values);
}

/// Pictures show what has any bit of the mask; states know all bits and none.
QJsonArray unmasked(const qxSlots &slots, const osg::NodePtr &node)
{
    const qxSceneObject object(node);
    if (slots.find(object, qxAspect::Visibility) < 0)
        return node->getTravMask() != 0 ? QJsonArray() : qxSlots::never();
    return condition(slots, object, qxAspect::Visibility,
                     [](qxSlots::Value value) { return value == 1; });
}

QJsonArray chosen(const qxSlots &slots, const osg::NodePtr &node, std::size_t child)
{
    if (osg::SwitchPtr::dcast(node->getCore()) == osg::NullFC)
        return QJsonArray();
    return condition(slots, qxSceneObject(node), qxAspect::Choice, [child](qxSlots::Value value) {
        return value == qxSlots::Value(child) || value == osg::Switch::ALL;
    });
}

} // namespace

qxPublishedBindings::qxPublishedBindings(const qxSceneFile &file, const qxSlots &slots,
                                         const qxPlaces &places, qxLossReport &losses)
    : m_file(file), m_slots(slots), m_places(places), m_losses(losses)
{
    for (const osg::NodePtr &top : {qxScenegraph::getRoot(), qxOverlays::getPoolRoot(),
                                    qxScenegraph::environmentGeometrySwitch()})
        add(top);
}

void qxPublishedBindings::writeTo(QJsonObject &json) const
{
    QJsonArray nodes;
    for (const auto &[node, binding] : m_nodes) {
        QJsonObject numbered = binding;
        numbered[nodeKey] = node;
        nodes += numbered;
    }
    json[QStringLiteral("nodes")] = nodes;
    json[QStringLiteral("parts")] = m_parts;
    json[QStringLiteral("wardrobes")] = m_wardrobes;
    json[QStringLiteral("overlays")] = m_overlays;
    const osg::NodePtr environment = qxScenegraph::environmentGeometrySwitch();
    const int node = environment == osg::NullFC ? -1 : m_file.placeOf(environment).node;
    if (node >= 0)
        json[QStringLiteral("environment")] = node;
}

void qxPublishedBindings::add(const osg::NodePtr &top)
{
    if (top != osg::NullFC)
        qxWalkTree(std::vector<Place>{{top, QJsonArray()}},
                   [this](const Place &place, std::vector<Place> &below) { visit(place, below); });
}

void qxPublishedBindings::visit(Place place, std::vector<Place> &below)
{
    append(place.shown, unmasked(m_slots, place.node));
    const qxFilePlace found = m_file.placeOf(place.node);
    if (found.part >= 0) {
        bindPart(place, found.node, found.part);
    } else if (found.node >= 0) {
        bindNode(place, found.node);
        place.shown = QJsonArray();
    }
    const osg::MFNodePtr &children = *place.node->getMFChildren();
    for (std::size_t i = 0; i < children.size(); ++i) {
        QJsonArray shown = place.shown;
        append(shown, chosen(m_slots, place.node, i));
        below.push_back({children[i], shown});
    }
}

/// Several nodes may stand for one of the file, one below the other.
void qxPublishedBindings::bindNode(const Place &place, int node)
{
    const osg::NodeCorePtr core = place.node->getCore();
    const osg::OverlayCorePtr overlay = osg::OverlayCorePtr::dcast(core);
    if (overlay != osg::NullFC)
        m_overlays +=
            QJsonObject{{nodeKey, node}, {QStringLiteral("layer"), double(overlay->getLayer())}};
    QJsonObject binding;
    const auto known = m_nodes.find(node);
    if (known != m_nodes.end())
        binding = known->second;
    QJsonArray shown = binding.value(shownKey).toArray(); // the brackets would add a null
    append(shown, place.shown);
    if (!shown.isEmpty())
        binding[shownKey] = shown;
    const QJsonObject matrices = matricesOf(place.node);
    if (!matrices.isEmpty())
        binding[QStringLiteral("place")] = matrices;
    if (osg::UberLightPtr::dcast(core) != osg::NullFC) {
        const QJsonArray on = condition(m_slots, qxSceneObject(place.node), qxAspect::Light,
                                        [](qxSlots::Value value) { return value == 1; });
        if (!on.isEmpty())
            binding[QStringLiteral("light")] = on;
    }
    if (!binding.isEmpty())
        m_nodes[node] = binding;
}

QJsonObject qxPublishedBindings::matricesOf(const osg::NodePtr &node) const
{
    const osg::TransformPtr transform = osg::TransformPtr::dcast(node->getCore());
    if (transform == osg::NullFC)
        return node == qxScenegraph::environmentGeometrySwitch() ? still(osg::Matrix())
                                                                 : QJsonObject();
    const int slot = m_places.slotOf(node);
    if (slot < 0 || !m_slots.isChanging(slot)) {
        const bool isSwitch = osg::SwitchComponentTransformPtr::dcast(transform) != osg::NullFC;
        return isSwitch ? still(transform->getMatrix()) : QJsonObject();
    }
    QJsonObject matrices;
    const std::vector<osg::Matrix> places = m_places.matrices(slot);
    for (const qxSlots::Value value : m_slots.values(slot))
        matrices[QString::number(value)] = qxSceneJson::matrix(places[std::size_t(value)]);
    return {{slotKey, m_slots.number(slot)}, {QStringLiteral("matrices"), matrices}};
}

QJsonObject qxPublishedBindings::still(const osg::Matrix &matrix) const
{
    return {{slotKey, m_slots.constant()},
            {QStringLiteral("matrices"),
             QJsonObject{{QStringLiteral("0"), qxSceneJson::matrix(matrix)}}}};
}

void qxPublishedBindings::bindPart(const Place &place, int node, int part)
{
    QJsonObject binding;
    if (!place.shown.isEmpty())
        binding[shownKey] = place.shown;
    const osg::MaterialPtr worn = osg::GeometryPtr::dcast(place.node->getCore())->getMaterial();
    if (osg::SwitchMaterialPtr::dcast(worn) != osg::NullFC)
        binding[QStringLiteral("wardrobe")] = wardrobeOf(worn);
    if (binding.isEmpty())
        return;
    binding[nodeKey] = node;
    binding[QStringLiteral("part")] = part;
    m_parts += binding;
}

int qxPublishedBindings::wardrobeOf(const osg::MaterialPtr &material)
{
    const osg::UInt32 id = material.getFieldContainerId();
    if (!m_wardrobePlaces.contains(id)) {
        m_wardrobePlaces.insert(id, m_wardrobes.size());
        m_wardrobes += choiceOf(material);
    }
    return m_wardrobePlaces.value(id);
}

/// A choice out of range shows what parts without a material show.
QJsonValue qxPublishedBindings::choiceOf(const osg::MaterialPtr &material)
{
    const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(material);
    if (choices == osg::NullFC)
        return plainMaterial(material);
    const osg::UInt32 id = material.getFieldContainerId();
    if (m_choices.contains(id))
        return m_choices.value(id);
    const auto at = [&](qxSlots::Value place) {
        const bool isThere = place >= 0 && place < qxSlots::Value(choices->getMaterials().size());
        return choiceOf(isThere ? choices->getMaterials()[osg::UInt32(place)] : osg::MaterialPtr());
    };
    const int slot = m_slots.find(qxSceneObject(material), qxAspect::Choice);
    if (slot < 0 || !m_slots.isChanging(slot))
        return *m_choices.insert(id, at(choices->getChoice()));
    QJsonObject materials;
    for (const qxSlots::Value value : m_slots.values(slot))
        materials[QString::number(value)] = at(value);
    return *m_choices.insert(
        id, QJsonObject{{slotKey, m_slots.number(slot)}, {QStringLiteral("materials"), materials}});
}

QJsonValue qxPublishedBindings::plainMaterial(const osg::MaterialPtr &material)
{
    const std::optional<int> place = m_file.materialOf(material);
    if (!place)
        m_losses.add({QString(), QStringLiteral("material"), qxNames::nameOf(material), QString(),
                      qxLoss::Dropped, QStringLiteral("the file has no such material")});
    return place.value_or(-1);
}
