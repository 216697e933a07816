#include "Files/qxGltfSwitchMaterials.h"

#include "Files/qxGltfCheck.h"
#include "Files/qxGltfExtras.h"
#include "Files/qxGltfModel.h"
#include "qxMaterials.h"

#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <set>

namespace {

const int _notMapped = -2;
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

QString textOf(const osg::MaterialPtr &material)
{
    return QString::fromStdString(qxMaterials::getName(material));
}

} // namespace

qxGltfSwitchMaterials::qxGltfSwitchMaterials(qxGltfModel &model, qxGltfScene &scene)
    : m_model(model), m_scene(scene)
{
    takeNames();
}

void qxGltfSwitchMaterials::takeNames()
{
    m_names = qxGltfNames();
    for (const qxGltfMaterialRef &material : m_scene.materials)
        m_names.take(qxMaterials::getName(material.get()));
}

void qxGltfSwitchMaterials::build()
{
    nameVariants();
    makeListed();
    for (std::size_t mesh = 0; mesh < m_scene.meshes.size(); ++mesh) {
        for (std::size_t i = 0; i < m_scene.meshes[mesh].size(); ++i)
            assign(mesh, i);
    }
    describeVariants();
}

/// The material at that place of the file; one that has no name gets one, because it is chosen by
/// its name.
osg::MaterialPtr qxGltfSwitchMaterials::material(int index)
{
    if (index < 0 && m_default == osg::NullFC) {
        m_default = qxGltfDefaultMaterial();
        osg::setName(m_default.get(), m_names.unique("Default Material"));
        m_scene.origin.materials[m_default.get().getFieldContainerId()] = -1;
    }
    const osg::MaterialPtr material =
        index < 0 ? m_default.get() : m_scene.materials[std::size_t(index)].get();
    if (qxMaterials::getName(material).empty())
        osg::setName(material, m_names.unique("Material"));
    return material;
}

osg::SwitchMaterialPtr qxGltfSwitchMaterials::make(const std::string &name,
                                                   const std::vector<int> &materials,
                                                   osg::UInt32 choice)
{
    const osg::SwitchMaterialPtr made = osg::SwitchMaterial::create();
    m_scene.switches.emplace_back(made);
    osg::setName(made, name);
    const osg::CPEditor edit(made);
    for (const int index : materials)
        made->addMaterial(material(index));
    made->setChoice(choice);
    return made;
}

void qxGltfSwitchMaterials::makeListed()
{
    const qxJson &list =
        qxGltfMember(qxGltfMember(m_model.document.json, "extras"), qxGltfKeys::switchMaterials);
    for (const qxJson &entry : list.is_array() ? list : qxJson::array()) {
        const QString called = qxGltfCalled("switch material", int(m_listed.size()), entry);
        m_listed.push_back(makeListed(entry, called));
    }
}

osg::SwitchMaterialPtr qxGltfSwitchMaterials::makeListed(const qxJson &entry, const QString &called)
{
    const qxJson &name = qxGltfMember(entry, "name");
    const qxJson &list = qxGltfMember(entry, "materials");
    const qxJson &choice = qxGltfMember(entry, "choice");
    std::vector<int> materials;
    for (const qxJson &value : list.is_array() ? list : qxJson::array()) {
        const int index = indexBelow(value, m_scene.materials.size());
        if (index < 0 && value != -1) {
            materials.clear();
            break;
        }
        materials.push_back(index);
    }
    if (materials.empty() || !name.is_string()) {
        m_model.warnings << qxFileText::tr("%1: cannot be used").arg(called);
        return osg::SwitchMaterialPtr();
    }
    m_names.take(name.get<std::string>());
    return make(name.get<std::string>(), materials,
                choice.is_number_unsigned() ? choice.get<osg::UInt32>() : 0);
}

qxGltfSwitchMaterials::Mapping qxGltfSwitchMaterials::mappingOf(const qxJson &primitive,
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

osg::SwitchMaterialPtr qxGltfSwitchMaterials::switchFor(const Mapping &mapping)
{
    osg::SwitchMaterialPtr &found = m_mapped[mapping];
    if (found == osg::NullFC) {
        const std::string base = qxMaterials::getName(material(mapping[0]));
        found = make(m_names.unique(base + " Switch"), materialsOf(mapping), 0);
    }
    return found;
}

/// Whether the primitive states which switch material of the list it shows, or that it shows none.
bool qxGltfSwitchMaterials::isListed(const qxJson &primitive, osg::SwitchMaterialPtr &shown) const
{
    const qxJson &stated =
        qxGltfMember(qxGltfMember(primitive, "extras"), qxGltfKeys::switchMaterial);
    const int listed = indexBelow(stated, m_listed.size());
    if (listed >= 0)
        shown = m_listed[std::size_t(listed)];
    return shown != osg::NullFC || stated == -1;
}

void qxGltfSwitchMaterials::assign(std::size_t mesh, std::size_t primitive)
{
    const osg::GeometryPtr geometry = m_scene.meshes[mesh][primitive].get();
    if (geometry == osg::NullFC)
        return;
    const qxJson &meshJson = m_model.document.json["meshes"][mesh];
    const qxJson &json = meshJson["primitives"][primitive];
    const QString called = qxGltfCalledPrimitive(int(mesh), meshJson, int(primitive));
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

qxGltfSwitchUse qxGltfSwitchMaterials::mapped()
{
    const std::size_t made = m_scene.switches.size();
    const QStringList warnings = m_model.warnings;
    m_mapped.clear();
    takeNames();
    if (m_default != osg::NullFC)
        m_names.take(qxMaterials::getName(m_default.get()));
    qxGltfSwitchUse use;
    for (std::size_t mesh = 0; mesh < m_scene.meshes.size(); ++mesh) {
        const qxJson &parts = m_model.document.json["meshes"][mesh]["primitives"];
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const osg::GeometryPtr geometry = m_scene.meshes[mesh][i].get();
            Mapping mapping = mappingOf(parts[i], QString());
            osg::SwitchMaterialPtr listed;
            if (geometry == osg::NullFC || !isMapped(mapping))
                continue;
            if (isListed(parts[i], listed) && listed != osg::NullFC)
                mapping[0] =
                    m_scene.origin.materials.at(listed->getMaterial(0).getFieldContainerId());
            use.addGeometry(geometry.getFieldContainerId(), switchFor(mapping));
        }
    }
    m_scene.switches.resize(made);
    m_model.warnings = warnings;
    return use;
}

void qxGltfSwitchMaterials::nameVariants()
{
    const qxJson &list = qxGltfSection(variantsExtension(m_model.document.json), "variants");
    qxGltfNames taken;
    std::vector<std::string> names = qxGltfShownNames(list);
    for (const std::string &name : names)
        taken.take(name);
    for (std::string &name : names) {
        if (name.empty())
            name = taken.unique("Variant");
        m_scene.variants.push_back({QString::fromStdString(name), {}});
    }
}

/// A variant shows the first material of what it does not map: that with which the file was made.
void qxGltfSwitchMaterials::describeVariants()
{
    for (std::size_t variant = 0; variant < m_scene.variants.size(); ++variant) {
        for (const auto &use : m_uses) {
            const int mapped = use.second[variant + 1];
            const osg::MaterialPtr shown =
                mapped == _notMapped ? use.first->getMaterial(0) : material(mapped);
            if (use.first->hasMaterial(shown))
                m_scene.variants[variant].materials.push_back({textOf(use.first), textOf(shown)});
        }
    }
}
