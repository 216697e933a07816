#include "Files/Gltf/Read/qxGltfSwitchMaterialBuilder.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "qxMaterials.h"
#include "qxNames.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <set>

namespace {

const int _notMapped = -2;
const int _deepest = 200; ///< of switch materials in each other, as of the file's JSON
/// What a variant shows in a switch material, as an entry of a set.
const qint64 _bytesPerChoice = 1500;

const qxJson &variantsExtension(const qxJson &object)
{
    return qxGltfMember(qxGltfMember(object, "extensions"), "KHR_materials_variants");
}

/// An index below `count`, -1 for everything else.
int indexBelow(const qxJson &value, std::size_t count)
{
    const bool fits = value.is_number_unsigned() && value.get<std::size_t>() < count;
    return fits ? value.get<int>() : -1;
}

/// The materials of a mapping, each once, the default first.
std::vector<int> materialsOf(const std::vector<int> &mapping)
{
    std::vector<int> materials;
    std::set<int> seen = {_notMapped};
    for (const int material : mapping) {
        if (seen.insert(material).second)
            materials.push_back(material);
    }
    return materials;
}

/// Whether any variant is mapped.
bool isMapped(const std::vector<int> &mapping)
{
    return std::any_of(mapping.begin() + 1, mapping.end(),
                       [](int material) { return material != _notMapped; });
}

osg::MaterialPtr firstOf(const osg::SwitchMaterialPtr &material)
{
    const bool hasNone = material == osg::NullFC || material->getMFMaterials()->empty();
    return hasNone ? osg::MaterialPtr() : material->getMaterial(0);
}

} // namespace

qxGltfSwitchMaterialBuilder::qxGltfSwitchMaterialBuilder(qxGltfModel &model, qxGltfScene &scene)
    : m_model(model), m_scene(scene)
{
    takeNames();
}

void qxGltfSwitchMaterialBuilder::takeNames()
{
    m_names = qxGltfNames();
    for (const qxGltfMaterialRef &material : m_scene.materials)
        m_names.take(qxMaterials::getName(material.get()));
}

void qxGltfSwitchMaterialBuilder::build()
{
    nameVariants();
    makeListed();
    for (std::size_t mesh = 0; mesh < m_scene.meshes.size(); ++mesh) {
        for (std::size_t i = 0; i < m_scene.meshes[mesh].size(); ++i)
            assign(mesh, i);
    }
    orderPool();
    describeVariants();
}

/// The material at that place of the file; one that has no name gets one, because it is chosen by
/// its name.
osg::MaterialPtr qxGltfSwitchMaterialBuilder::material(int index)
{
    if (index < 0 && m_default == osg::NullFC) {
        m_default = qxGltfDefaultMaterial();
        m_scene.origin.defaultName = m_names.unique(qxGltfDefaultName);
        osg::setName(m_default.get(), m_scene.origin.defaultName);
        m_scene.origin.materials[m_default.get().getFieldContainerId()] = -1;
    }
    const osg::MaterialPtr material =
        index < 0 ? m_default.get() : m_scene.materials[std::size_t(index)].get();
    if (qxMaterials::getName(material).empty())
        osg::setName(material, m_names.unique("Material"));
    return material;
}

osg::SwitchMaterialRefPtr qxGltfSwitchMaterialBuilder::make(
    const std::string &name, const std::vector<osg::MaterialPtr> &materials, osg::UInt32 choice)
{
    const osg::SwitchMaterialRefPtr made(osg::SwitchMaterial::create());
    osg::setName(made.get(), name);
    const osg::CPEditor edit(made.get());
    for (const osg::MaterialPtr &each : materials)
        made->addMaterial(each);
    made->setChoice(choice);
    return made;
}

void qxGltfSwitchMaterialBuilder::makeListed()
{
    const qxJson &stated =
        qxGltfMember(qxGltfMember(m_model.document.json, "extras"), qxGltfKeys::switchMaterials);
    const qxJson &list = stated.is_array() ? stated : qxJson::array();
    m_listed.resize(list.size());
    for (std::size_t i = 0; i < list.size(); ++i)
        listed(list, int(i), 0);
    for (const Listed &each : m_listed) {
        if (each.material != osg::NullFC)
            m_scene.switches.push_back(each.material);
    }
}

/// The switch material of that entry, which is made when it is asked for first; null when it cannot
/// be used, also because it contains itself.
osg::MaterialPtr qxGltfSwitchMaterialBuilder::listed(const qxJson &list, int index, int depth)
{
    Listed &entry = m_listed[std::size_t(index)];
    if (entry.isOpen || depth > _deepest)
        return osg::MaterialPtr();
    if (!entry.isMade) {
        entry.isOpen = true;
        entry.material = makeListed(list, index, depth);
        entry.isOpen = false;
        entry.isMade = true;
        if (entry.material == osg::NullFC)
            m_model.warnings << qxFileText::tr("%1: cannot be used")
                                    .arg(qxGltfLabel("switch material", index,
                                                     list[std::size_t(index)]));
    }
    return entry.material.get();
}

osg::SwitchMaterialRefPtr qxGltfSwitchMaterialBuilder::makeListed(const qxJson &list, int index,
                                                                  int depth)
{
    const qxJson &entry = list[std::size_t(index)];
    const qxJson &name = qxGltfMember(entry, "name");
    const qxJson &choice = qxGltfMember(entry, "choice");
    const qxJson &contents = qxGltfMember(entry, "materials");
    if (!contents.is_array() || !name.is_string())
        return osg::SwitchMaterialRefPtr();
    const auto isPlace = [this](const qxJson &value) {
        return value == -1 || indexBelow(value, m_scene.materials.size()) >= 0;
    };
    std::vector<osg::MaterialPtr> materials;
    for (const qxJson &value : contents) {
        const int nested = indexBelow(qxGltfMember(value, qxGltfKeys::switchMaterial), list.size());
        if (nested < 0 && !isPlace(value))
            return osg::SwitchMaterialRefPtr();
        materials.push_back(nested < 0 ? material(value.get<int>())
                                       : listed(list, nested, depth + 1));
        if (materials.back() == osg::NullFC)
            return osg::SwitchMaterialRefPtr();
    }
    m_names.take(name.get<std::string>());
    return make(name.get<std::string>(), materials,
                choice.is_number_unsigned() ? choice.get<osg::UInt32>() : 0);
}

/// The material at a place of the list qxMaterialPool, null when there is none.
osg::MaterialPtr qxGltfSwitchMaterialBuilder::pooled(const qxJson &place) const
{
    const int plain = indexBelow(place, m_scene.materials.size());
    if (plain >= 0)
        return m_scene.materials[std::size_t(plain)].get();
    const int choices =
        indexBelow(qxGltfMember(place, qxGltfKeys::switchMaterial), m_listed.size());
    return choices < 0 ? osg::MaterialPtr() : m_listed[std::size_t(choices)].material.get();
}

/// The pool holds all materials and then all switch materials, unless the file says otherwise. It
/// cannot say so of those that its mappings make: they come last.
void qxGltfSwitchMaterialBuilder::orderPool()
{
    const qxJson &list =
        qxGltfMember(qxGltfMember(m_model.document.json, "extras"), qxGltfKeys::materialPool);
    std::vector<qxGltfMaterialRef> stated;
    std::set<osg::UInt32> seen;
    for (const qxJson &place : list.is_array() ? list : qxJson::array()) {
        const osg::MaterialPtr material = pooled(place);
        if (material != osg::NullFC && seen.insert(material.getFieldContainerId()).second)
            stated.emplace_back(material);
    }
    const bool isUsable = list.is_array() && stated.size() == list.size();
    if (!list.is_null() && !isUsable)
        m_model.warnings << qxFileText::tr("%1: cannot be used").arg(qxGltfKeys::materialPool);
    m_scene.pool = isUsable ? stated : m_scene.materials;
    const auto isListed = [this](const osg::SwitchMaterialRefPtr &material) {
        return std::any_of(m_listed.begin(), m_listed.end(),
                           [&material](const Listed &each) { return each.material == material; });
    };
    for (const osg::SwitchMaterialRefPtr &material : m_scene.switches) {
        if (!isUsable || !isListed(material))
            m_scene.pool.emplace_back(osg::MaterialPtr(material.get()));
    }
}

qxGltfSwitchMaterialBuilder::Mapping qxGltfSwitchMaterialBuilder::mappingOf(const qxJson &primitive,
                                                                            const QString &called)
{
    Mapping mapping(m_scene.variants.size() + 1, _notMapped);
    mapping[0] = qxGltfIndex(primitive, "material");
    const qxJson &entries = qxGltfMember(variantsExtension(primitive), "mappings");
    for (const qxJson &entry : entries.is_array() ? entries : qxJson::array()) {
        const int material = indexBelow(qxGltfMember(entry, "material"), m_scene.materials.size());
        const qxJson &variants = qxGltfMember(entry, "variants");
        if (material < 0 || !variants.is_array()) {
            m_model.warnings << called + ": "
                    + qxFileText::tr("a mapping of variants cannot be used");
            continue;
        }
        for (const qxJson &value : variants) {
            const int variant = indexBelow(value, m_scene.variants.size());
            if (variant < 0)
                m_model.warnings << called + ": "
                        + qxFileText::tr("a mapping names a variant that is not there");
            else if (mapping[std::size_t(variant) + 1] == _notMapped)
                mapping[std::size_t(variant) + 1] = material;
        }
    }
    return mapping;
}

osg::SwitchMaterialPtr qxGltfSwitchMaterialBuilder::switchFor(const Mapping &mapping)
{
    osg::SwitchMaterialPtr &found = m_mapped[mapping];
    if (found == osg::NullFC) {
        const std::string base = qxMaterials::getName(material(mapping[0]));
        std::vector<osg::MaterialPtr> materials;
        for (const int index : materialsOf(mapping))
            materials.push_back(material(index));
        m_scene.switches.push_back(make(m_names.unique(base + " Switch"), materials, 0));
        found = m_scene.switches.back().get();
    }
    return found;
}

/// Whether the primitive states which switch material of the list it shows, or that it shows none.
bool qxGltfSwitchMaterialBuilder::isListed(const qxJson &primitive,
                                           osg::SwitchMaterialPtr &shown) const
{
    const qxJson &stated =
        qxGltfMember(qxGltfMember(primitive, "extras"), qxGltfKeys::switchMaterial);
    const int listed = indexBelow(stated, m_listed.size());
    if (listed >= 0)
        shown = m_listed[std::size_t(listed)].material.get();
    return shown != osg::NullFC || stated == -1;
}

void qxGltfSwitchMaterialBuilder::assign(std::size_t mesh, std::size_t primitive)
{
    const osg::GeometryPtr geometry = m_scene.meshes[mesh][primitive].get();
    if (geometry == osg::NullFC)
        return;
    const qxJson &meshJson = m_model.document.json["meshes"][mesh];
    const qxJson &json = meshJson["primitives"][primitive];
    const QString called = qxGltfPrimitiveLabel(int(mesh), meshJson, int(primitive));
    const Mapping mapping = mappingOf(json, called);
    osg::SwitchMaterialPtr shown;
    if (!isListed(json, shown) && isMapped(mapping))
        shown = switchFor(mapping);
    if (shown == osg::NullFC)
        return;
    const osg::CPEditor edit(geometry, osg::Geometry::MaterialFieldMask);
    geometry->setMaterial(shown);
    m_scene.origin.geometries[geometry.getFieldContainerId()].switchMaterial =
        shown.getFieldContainerId();
    if (!isMapped(mapping) || !m_useOf.emplace(shown.getFieldContainerId(), m_uses.size()).second)
        return;
    m_model.budget.take(called, qint64(mapping.size()), _bytesPerChoice);
    m_uses.emplace_back(shown, mapping);
}

qxGltfSwitchMaterialUse qxGltfSwitchMaterialBuilder::mapped()
{
    const std::size_t made = m_scene.switches.size();
    const QStringList warnings = m_model.warnings;
    m_mapped.clear();
    takeNames();
    if (m_default != osg::NullFC)
        m_names.take(qxMaterials::getName(m_default.get()));
    qxGltfSwitchMaterialUse use;
    for (std::size_t mesh = 0; mesh < m_scene.meshes.size(); ++mesh) {
        const qxJson &parts = m_model.document.json["meshes"][mesh]["primitives"];
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const osg::GeometryPtr geometry = m_scene.meshes[mesh][i].get();
            Mapping mapping = mappingOf(parts[i], QString());
            osg::SwitchMaterialPtr listed;
            if (geometry == osg::NullFC || !isMapped(mapping))
                continue;
            if (isListed(parts[i], listed) && firstOf(listed) != osg::NullFC) {
                const auto known =
                    m_scene.origin.materials.find(firstOf(listed).getFieldContainerId());
                mapping[0] = known == m_scene.origin.materials.end() ? mapping[0] : known->second;
            }
            use.addGeometry(geometry.getFieldContainerId(), switchFor(mapping));
        }
    }
    m_scene.switches.resize(made);
    m_model.warnings = warnings;
    return use;
}

void qxGltfSwitchMaterialBuilder::nameVariants()
{
    const qxJson &list = qxGltfSection(variantsExtension(m_model.document.json), "variants");
    qxGltfNames taken;
    std::vector<std::string> names = qxGltfShownNames(list);
    for (const std::string &name : names)
        taken.take(name);
    for (std::string &name : names) {
        if (name.empty())
            name = taken.unique("Variant");
        m_scene.variants.push_back({qxText::fromUtf8(name), {}});
    }
}

/// A variant shows the first material of what it does not map: that with which the file was made.
void qxGltfSwitchMaterialBuilder::describeVariants()
{
    for (std::size_t variant = 0; variant < m_scene.variants.size(); ++variant) {
        for (const auto &use : m_uses) {
            const int mapped = use.second[variant + 1];
            const osg::MaterialPtr shown =
                mapped == _notMapped ? firstOf(use.first) : material(mapped);
            if (shown != osg::NullFC && use.first->hasMaterial(shown))
                m_scene.variants[variant].materials.push_back(
                    {qxNames::nameOf(use.first), qxNames::nameOf(shown)});
        }
    }
}
