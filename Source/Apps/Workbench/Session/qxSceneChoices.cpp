#include "qxSceneChoices.h"

#include "qxVariants.h"

#include "qxMaterialParts.h"
#include "qxMaterials.h"
#include "qxMessage.h"
#include "qxModuleBase.h"
#include "qxNodeUtils.h"
#include "qxText.h"

#include <QHash>
#include <QJsonArray>

namespace {

typedef qxSceneChoices::Materials Materials;

const QString madeKey = QStringLiteral("made");
const QString partsKey = QStringLiteral("parts");
const QString choicesKey = QStringLiteral("choices");
const QString wornKey = QStringLiteral("worn");

Materials choicesOf(const osg::MaterialPtr &material)
{
    if (osg::SwitchMaterialPtr::dcast(material) == osg::NullFC)
        return Materials();
    const std::vector<osg::MaterialPtr> parts = qxMaterialParts::of(material);
    return Materials(parts.begin(), parts.end());
}

/// Materials by their places: those that were known, then new switch materials.
class Places {
public:
    explicit Places(const Materials &known)
    {
        for (const osg::MaterialRefPtr &each : known)
            add(each.get());
        for (const osg::MaterialPtr &each : qxMaterialParts::all()) {
            if (of(each) < 0 && osg::SwitchMaterialPtr::dcast(each) != osg::NullFC)
                add(each);
        }
    }
    const Materials &all() const { return m_all; }
    int of(const osg::MaterialPtr &material) const
    {
        return material == osg::NullFC ? -1 : m_places.value(material.getFieldContainerId(), -1);
    }
    QJsonArray of(const Materials &materials) const
    {
        QJsonArray places;
        for (const osg::MaterialRefPtr &each : materials)
            places.append(of(each.get()));
        return places;
    }

private:
    void add(const osg::MaterialPtr &material)
    {
        m_places.insert(material.getFieldContainerId(), int(m_all.size()));
        m_all.push_back(osg::MaterialRefPtr(material));
    }

    Materials m_all;
    QHash<osg::UInt32, int> m_places;
};

template <class Objects>
auto at(const Objects &objects, int place) -> decltype(objects.front().get())
{
    const bool isThere = place >= 0 && std::size_t(place) < objects.size();
    return isThere ? objects[std::size_t(place)].get() : decltype(objects.front().get())();
}

/// A material that is made of itself would have no end.
bool isMadeOf(const osg::MaterialPtr &material, const osg::MaterialPtr &part)
{
    if (material == part)
        return true;
    const std::vector<osg::MaterialPtr> parts = qxMaterialParts::of(material);
    return std::any_of(parts.begin(), parts.end(),
                       [&](const osg::MaterialPtr &each) { return isMadeOf(each, part); });
}

void setParts(const osg::SwitchMaterialPtr &choices, const QJsonArray &places, const Materials &all)
{
    const Materials held = choicesOf(choices); // beyond the moment in which nothing else holds them
    const osg::CPEditor edit(choices, osg::SwitchMaterialBase::MaterialsFieldMask);
    for (const osg::MaterialRefPtr &part : held)
        choices->subMaterial(part.get());
    for (const QJsonValue &place : places) {
        const osg::MaterialPtr part = at(all, place.toInt(-1));
        if (part != osg::NullFC && !isMadeOf(part, choices))
            choices->addMaterial(part);
    }
}

void setChoice(const osg::SwitchMaterialPtr &choices, int choice)
{
    if (choice < 0 || std::size_t(choice) >= choices->getMaterials().size())
        return;
    const osg::CPEditor edit(choices, osg::SwitchMaterialBase::ChoiceFieldMask);
    choices->setChoice(osg::UInt32(choice));
}

Materials withMade(Materials all, const QJsonArray &names)
{
    const osg::MaterialPoolPtr pool = qxScenegraph::getMaterialPool();
    const osg::CPEditor edit(pool);
    for (const QJsonValue &name : names) {
        const osg::SwitchMaterialPtr made = osg::SwitchMaterial::create();
        qxMaterials::setName(made, qxText::toUtf8(name.toString()).c_str(), true);
        all.push_back(osg::MaterialRefPtr(made));
        pool->add(made);
    }
    return all;
}

} // namespace

qxSceneChoices::qxSceneChoices(const Nodes &nodes, const Materials &materials)
    : m_nodes(nodes), m_materials(materials)
{
    for (const osg::NodeRefPtr &each : nodes)
        m_worn.push_back(osg::MaterialRefPtr(qxNodeUtils::getMaterial(each.get())));
    for (const osg::MaterialRefPtr &each : materials)
        m_parts.push_back(choicesOf(each.get()));
}

QJsonObject qxSceneChoices::changes() const
{
    const Places places(m_materials);
    QJsonObject parts;
    QJsonObject choices;
    QJsonObject worn;
    QJsonArray made;
    for (std::size_t place = 0; place < places.all().size(); ++place) {
        const osg::MaterialPtr material = places.all()[place].get();
        const bool isNew = place >= m_materials.size();
        if (isNew)
            made.append(qxText::fromUtf8(qxMaterials::getName(material)));
        const Materials now = choicesOf(material);
        if (!isNew && now == m_parts[place])
            continue;
        const QString key = QString::number(place);
        parts.insert(key, places.of(now));
        choices.insert(key, int(osg::SwitchMaterialPtr::dcast(material)->getChoice()));
    }
    for (std::size_t place = 0; place < m_nodes.size(); ++place) {
        const osg::MaterialRefPtr now(qxNodeUtils::getMaterial(m_nodes[place].get()));
        if (now != m_worn[place])
            worn.insert(QString::number(place), places.of(now.get()));
    }
    QJsonObject changes;
    if (!made.isEmpty())
        changes.insert(madeKey, made);
    if (!parts.isEmpty()) {
        changes.insert(partsKey, parts);
        changes.insert(choicesKey, choices);
    }
    if (!worn.isEmpty())
        changes.insert(wornKey, worn);
    return changes;
}

void qxSceneChoices::apply(const QJsonObject &changes) const
{
    if (changes.isEmpty())
        return;
    const Materials all = withMade(m_materials, changes[madeKey].toArray());
    const QJsonObject parts = changes[partsKey].toObject();
    const QJsonObject choices = changes[choicesKey].toObject();
    for (auto each = parts.begin(); each != parts.end(); ++each) {
        const auto material = osg::SwitchMaterialPtr::dcast(at(all, each.key().toInt()));
        if (material == osg::NullFC)
            continue;
        setParts(material, each->toArray(), all);
        setChoice(material, choices[each.key()].toInt());
    }
    const QJsonObject worn = changes[wornKey].toObject();
    for (auto each = worn.begin(); each != worn.end(); ++each) {
        const osg::NodePtr node = at(m_nodes, each.key().toInt());
        const osg::MaterialPtr material = at(all, each->toInt(-1));
        if (node != osg::NullFC && material != osg::NullFC)
            qxVariants::changeMaterial(node, material);
    }
    qxMessage message(qxModuleBase::MaterialsChanged);
    qxModuleBase::sendMessage(message, false);
}
