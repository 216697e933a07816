#include "Files/Gltf/Write/qxGltfMaterialPatch.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfNames.h"
#include "Files/Gltf/Common/qxGltfState.h"
#include "Files/Gltf/Read/qxGltfMaterials.h"
#include "qxMaterials.h"
#include "qxNames.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSimpleAttachments.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>
#include <OpenSG/OSGSwitchMaterial.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

namespace {

std::vector<float> numbersOf(const osg::Color3f &colour)
{
    return {colour.red(), colour.green(), colour.blue()};
}

void writeAlpha(qxJson &json, const qxGltfMaterialState &now)
{
    static const char *const modes[] = {"OPAQUE", "MASK", "BLEND"};
    const bool becomesBlended = now.surface.alphaMode == qxSurface::Opaque && now.colour[3] < 1;
    json["alphaMode"] = modes[becomesBlended ? qxSurface::Blend : now.surface.alphaMode];
    if (now.surface.alphaMode == qxSurface::Mask)
        json["alphaCutoff"] = qxGltfNumber(now.surface.alphaCutoff);
}

/// Opacity means nothing in opaque materials: there it stays as the file has it.
void writeColour(qxJson &json, const qxGltfMaterialState &now)
{
    qxJson &surface = json["pbrMetallicRoughness"];
    const qxJson old = qxGltfMember(surface, "baseColorFactor");
    qxJson colour = qxGltfNumberList(now.colour.data(), 4);
    if (now.colour[3] >= 1 && now.surface.alphaMode == qxSurface::Opaque && old.is_array())
        colour[3] = old[3];
    surface["baseColorFactor"] = colour;
}

/// Numbers about pictures that are not there have no place.
bool hasPlace(const qxJson &material, const qxGltfPlace &place)
{
    const qxGltfPlace above = place.parent_pointer();
    return above.empty() || !QString::fromStdString(above.back()).endsWith("Texture")
        || material.contains(above);
}

/// Numbers without end are those that stand for "none".
void writeNumber(qxJson &material, const qxGltfPlace &place, const std::vector<float> &values)
{
    if (values.size() > 1)
        material[place] = qxGltfNumberList(values.data(), values.size());
    else if (std::isfinite(values[0]))
        material[place] = qxGltfNumber(values[0]);
    else if (material.contains(place))
        material[place.parent_pointer()].erase(place.back());
}

void writeSurface(qxJson &json, const qxSurface &before, const qxSurface &now)
{
    for (const qxSurface::Number &row : qxSurface::numbers()) {
        const bool isAlpha = row.number == &qxSurface::alphaCutoff; // see writeAlpha
        if (isAlpha || row.of(before) == row.of(now))
            continue;
        const qxGltfPlace place(row.place);
        if (hasPlace(json, place))
            writeNumber(json, place, row.of(now));
    }
    if (before.doubleSided != now.doubleSided)
        json["doubleSided"] = now.doubleSided;
    if (before.unlit && !now.unlit)
        qxGltfEraseExtension(json, "KHR_materials_unlit");
    else if (before.unlit != now.unlit)
        json["extensions"]["KHR_materials_unlit"] = qxJson::object();
    if (before.environment != now.environment)
        qxGltfSetExtra(json, qxGltfKeys::environment, now.environment ? qxJson(true) : qxJson());
}

void writeMaterial(qxJson &json, const qxGltfMaterialState &before, const qxGltfMaterialState &now)
{
    if (before.name != now.name && now.name)
        json["name"] = *now.name;
    if (before.colour != now.colour)
        writeColour(json, now);
    if (before.emission != now.emission)
        json["emissiveFactor"] = qxGltfNumberList(now.emission.data(), 3);
    const bool alphaChanged = before.colour[3] != now.colour[3]
        || before.surface.alphaMode != now.surface.alphaMode
        || before.surface.alphaCutoff != now.surface.alphaCutoff;
    if (alphaChanged)
        writeAlpha(json, now);
    writeSurface(json, before.surface, now.surface);
}

/// How the reader understands a material of which a file says nothing.
qxGltfMaterialState unstated()
{
    qxGltfMaterialState state;
    state.colour = {1, 1, 1, 1};
    state.emission = {0, 0, 0};
    return state;
}

std::set<std::string> extensionsOf(const qxJson &material)
{
    std::set<std::string> names;
    for (const auto &extension : qxGltfMember(material, "extensions").items())
        names.insert(extension.key());
    return names;
}

bool hasPictures(const osg::MaterialPtr &material)
{
    const osg::SimpleTexturedMaterialPtr textured = osg::SimpleTexturedMaterialPtr::dcast(material);
    const qxSurface surface = qxSurface::of(material);
    return (textured != osg::NullFC && textured->getImage() != osg::NullFC)
        || std::any_of(
               surface.pictures.begin(), surface.pictures.end(),
               [](const qxSurfacePicture &picture) { return picture.image != osg::NullFC; });
}

} // namespace

qxGltfMaterialState qxGltfMaterialState::of(const osg::SimpleMaterialPtr &material)
{
    qxGltfMaterialState state;
    if (const char *name = osg::getName(material))
        state.name = name;
    state.colour = numbersOf(material->getDiffuse());
    state.colour.push_back(1.0f - material->getTransparency());
    state.emission = numbersOf(material->getEmission());
    state.surface = qxSurface::of(material);
    return state;
}

bool qxGltfMaterialState::looksLike(const qxGltfMaterialState &other) const
{
    return colour == other.colour && emission == other.emission && surface == other.surface;
}

qxGltfMaterialPatch::qxGltfMaterialPatch(qxJson &json, const qxGltfOrigin &origin,
                                         const Before &before)
    : m_json(json), m_origin(origin), m_before(before)
{
}

int qxGltfMaterialPatch::indexOf(const osg::MaterialPtr &material)
{
    if (material == osg::NullFC)
        return -1;
    const osg::UInt32 id = material.getFieldContainerId();
    const auto written = m_written.find(id);
    if (written != m_written.end())
        return written->second;
    const int index = placeOf(material);
    m_written[id] = index;
    if (index >= 0)
        writeChanges(material, index);
    return index;
}

/// That of primitives without a material needs no place as long as it looks like it.
int qxGltfMaterialPatch::placeOf(const osg::MaterialPtr &material)
{
    const auto known = m_origin.materials.find(material.getFieldContainerId());
    if (known == m_origin.materials.end())
        return append(material);
    const bool isDefault = known->second < 0
        && qxGltfMaterialState::of(osg::SimpleMaterialPtr::dcast(material)).looksLike(unstated());
    return known->second >= 0 || isDefault ? known->second : append(material);
}

int qxGltfMaterialPatch::append(const osg::MaterialPtr &material)
{
    const bool plain = osg::SimpleMaterialPtr::dcast(material) != osg::NullFC;
    if (!plain || hasPictures(material)) {
        throw qxGltfError(
            qxFileText::tr("material \"%1\" cannot be written: scene files get no new %2")
                .arg(qxNames::nameOf(material), material->getTypeName()));
    }
    m_namesChanged = true;
    qxJson &materials = m_json["materials"];
    materials.push_back(qxJson::object());
    return int(materials.size()) - 1;
}

void qxGltfMaterialPatch::writeChanges(const osg::MaterialPtr &material, int index)
{
    const std::size_t place = std::size_t(index);
    const qxGltfMaterialState before = place < m_before.size() ? m_before[place] : unstated();
    const auto now = qxGltfMaterialState::of(osg::SimpleMaterialPtr::dcast(material));
    m_namesChanged = m_namesChanged || before.name != now.name;
    m_names[index] = now.name.value_or("");
    qxJson &json = m_json["materials"][place];
    const std::set<std::string> used = extensionsOf(json);
    writeMaterial(json, before, now);
    for (const std::string &extension : extensionsOf(json)) {
        if (used.count(extension) == 0)
            qxGltfUseExtension(m_json, extension.c_str());
    }
}

void qxGltfMaterialPatch::writePool()
{
    std::vector<osg::MaterialPtr> pool;
    qxScenegraph::getMaterialPool()->get(pool);
    for (const osg::MaterialPtr &material : pool) {
        if (osg::SwitchMaterialPtr::dcast(material) == osg::NullFC)
            indexOf(material);
    }
}

bool qxGltfMaterialPatch::isDefault(const osg::MaterialPtr &material) const
{
    const auto known = m_origin.materials.find(material.getFieldContainerId());
    return known != m_origin.materials.end() && known->second < 0;
}

/// The one of primitives without a material has no entry that could hold its name.
void qxGltfMaterialPatch::findDefault(const qxGltfSwitchMaterialUse &use)
{
    for (const qxGltfSwitchMaterialState &each : use.states) {
        const auto found =
            std::find_if(each.contents.begin(), each.contents.end(),
                         [this](const osg::MaterialPtr &material) { return isDefault(material); });
        if (found != each.contents.end())
            m_default = *found;
    }
    if (m_default != osg::NullFC && qxMaterials::getName(m_default) != m_origin.defaultName)
        m_namesChanged = true;
}

/// Where the reader would not find the name again that it gave it, it gets an entry.
void qxGltfMaterialPatch::placeDefault(const qxGltfSwitchMaterialUse &use)
{
    if (m_default == osg::NullFC)
        return;
    const std::string name = qxMaterials::getName(m_default);
    const std::vector<std::string> names = qxGltfShownNames(qxGltfSection(m_json, "materials"));
    const bool isFree = std::count(names.begin(), names.end(), name) == 0
        && std::none_of(use.states.begin(), use.states.end(),
                        [&name](const qxGltfSwitchMaterialState &each) {
                            return each.name == name;
                        });
    int &place = m_written.emplace(m_default.getFieldContainerId(), -1).first->second;
    if (place >= 0 || (isFree && name == qxGltfDefaultName))
        return;
    place = append(m_default);
    writeChanges(m_default, place);
}

/// Where the materials of the pool stand in the file: materials by their place, switch materials
/// behind them by theirs.
std::vector<int> qxGltfMaterialPatch::poolPlaces(const qxGltfSwitchMaterialUse &use) const
{
    const int count = int(qxGltfSection(m_json, "materials").size());
    std::unordered_map<osg::UInt32, int> places = m_written;
    for (std::size_t i = 0; i < use.states.size(); ++i)
        places[use.states[i].id] = count + int(i);
    std::vector<int> pool;
    for (const osg::UInt32 id : use.pool)
        pool.push_back(places.at(id));
    return pool;
}

void qxGltfMaterialPatch::writePoolOrder(const std::vector<int> &places)
{
    const int count = int(qxGltfSection(m_json, "materials").size());
    qxJson list = qxJson::array();
    for (const int place : places) {
        list.push_back(place < count ? qxJson(place)
                                     : qxJson{{qxGltfKeys::switchMaterial, place - count}});
    }
    qxGltfSetExtra(m_json, qxGltfKeys::materialPool, list);
}

void qxGltfMaterialPatch::writeSwitches(const qxGltfSwitchMaterialUse &loaded,
                                        const qxGltfSwitchMaterialUse &mapped,
                                        const qxGltfSwitchMaterialUse &now)
{
    findDefault(now);
    if (!m_namesChanged && now == loaded && now.pool == loaded.pool)
        return;
    const auto isSame = [](const qxGltfSwitchMaterialState &one,
                           const qxGltfSwitchMaterialState &other) {
        return one.name == other.name && one.contents == other.contents;
    };
    m_settles = m_namesChanged
        || !std::equal(now.states.begin(), now.states.end(), loaded.states.begin(),
                       loaded.states.end(), isSame);
    if (m_settles)
        placeDefault(now);
    std::vector<int> natural(qxGltfSection(m_json, "materials").size() + now.states.size());
    std::iota(natural.begin(), natural.end(), 0);
    const std::vector<int> places = poolPlaces(now);
    const qxJson old = qxGltfMember(qxGltfMember(m_json, "extras"), qxGltfKeys::switchMaterials);
    m_list = true;
    qxGltfSetExtra(m_json, qxGltfKeys::materialPool, qxJson());
    if (m_namesChanged || !(now == mapped) || places != natural)
        listSwitches(now, old);
    else
        qxGltfSetExtra(m_json, qxGltfKeys::switchMaterials, qxJson());
    if (places != natural)
        writePoolOrder(places);
}

void qxGltfMaterialPatch::listSwitches(const qxGltfSwitchMaterialUse &use, const qxJson &old)
{
    for (std::size_t i = 0; i < use.states.size(); ++i)
        m_listed[use.states[i].id] = int(i);
    qxJson list = qxJson::array();
    for (const qxGltfSwitchMaterialState &each : use.states) {
        qxJson materials = qxJson::array();
        for (const osg::MaterialPtr &material : each.contents) {
            const auto nested = m_listed.find(material.getFieldContainerId());
            if (nested == m_listed.end())
                materials.push_back(indexOf(material));
            else
                materials.push_back({{qxGltfKeys::switchMaterial, nested->second}});
        }
        qxJson entry = qxJson::object();
        if (list.size() < old.size() && old[list.size()].is_object())
            entry = old[list.size()];
        entry["name"] = each.name;
        entry["materials"] = materials;
        entry["choice"] = each.choice;
        list.push_back(entry);
    }
    qxGltfSetExtra(m_json, qxGltfKeys::switchMaterials, list.empty() ? qxJson() : list);
}

void qxGltfMaterialPatch::writeTo(qxJson &primitive, const osg::MaterialPtr &material)
{
    const osg::SwitchMaterialPtr choices = osg::SwitchMaterialPtr::dcast(material);
    // What holds nothing shows nothing: other programs show what they did.
    if (choices == osg::NullFC || !choices->getMFMaterials()->empty()) {
        const int index = indexOf(qxGltfShownMaterial(material));
        if (index < 0)
            primitive.erase("material");
        else
            primitive["material"] = index;
    }
    if (!m_list)
        return;
    const auto listed =
        choices == osg::NullFC ? m_listed.end() : m_listed.find(choices.getFieldContainerId());
    const bool maps =
        !qxGltfMember(qxGltfMember(primitive, "extensions"), "KHR_materials_variants").is_null();
    qxJson place;
    if (listed != m_listed.end())
        place = listed->second;
    else if (maps && choices == osg::NullFC)
        place = -1; // a plain material in spite of what is mapped
    qxGltfSetExtra(primitive, qxGltfKeys::switchMaterial, place);
}

/// Whether the geometry shows the switch material that it was loaded with, and that the same as
/// then: what the file says about it stays, even where that is another material.
bool qxGltfMaterialPatch::isAsLoaded(const qxGltfOrigin::Part &part,
                                     const osg::GeometryPtr &geometry)
{
    const osg::MaterialPtr material = geometry->getMaterial();
    if (m_list || material == osg::NullFC || material.getFieldContainerId() != part.switchMaterial)
        return false;
    const osg::MaterialPtr chosen = qxGltfShownMaterial(material);
    return chosen == osg::NullFC || !isDefault(chosen) || indexOf(chosen) < 0;
}

void qxGltfMaterialPatch::writeGeometries(const qxGltfState &state,
                                          const qxGltfSwitchMaterialUse &use)
{
    for (const auto &part : m_origin.geometries) {
        qxJson &primitive = m_json["meshes"][std::size_t(part.second.mesh)]["primitives"]
                                  [std::size_t(part.second.primitive)];
        const auto shown = state.geometries.find(part.first);
        const auto choices = use.shownBy.find(part.first);
        if (shown != state.geometries.end() && !isAsLoaded(part.second, shown->second))
            writeTo(primitive, shown->second->getMaterial());
        else if (shown != state.geometries.end())
            continue;
        else if (m_list && choices != use.shownBy.end())
            writeTo(primitive, use.states[std::size_t(choices->second)].material);
        else if (m_list && part.second.switchMaterial != 0) // which is gone
            qxGltfSetExtra(primitive, qxGltfKeys::switchMaterial, qxJson());
    }
}

void qxGltfMaterialPatch::settleNames()
{
    if (!m_namesChanged && !m_settles)
        return;
    const std::vector<std::string> shown = qxGltfShownNames(qxGltfSection(m_json, "materials"));
    for (std::size_t i = 0; i < m_before.size(); ++i) {
        qxJson &json = m_json["materials"][i];
        const auto now = m_names.find(int(i));
        if (now != m_names.end() && now->second != shown[i])
            json["name"] = now->second;
    }
}
