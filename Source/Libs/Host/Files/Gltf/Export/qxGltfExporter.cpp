#include "Files/Gltf/Export/qxGltfExporter.h"

#include "Files/Gltf/Common/qxGltfCores.h"
#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfLights.h"
#include "Files/Gltf/Common/qxGltfSwitchMaterialState.h"
#include "Files/Gltf/Export/qxGltfExportClips.h"
#include "Files/Gltf/Export/qxGltfExportPoses.h"
#include "Files/Gltf/Export/qxGltfPacked.h"
#include "Files/Gltf/Read/qxGltfExtensions.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Files/Gltf/Write/qxGltfCameraPatch.h"
#include "qxMaterials.h"
#include "qxText.h"
#include "qxUberCameraPool.h"

#include <OpenSG/OSGFieldContainerFactory.h>

#include <algorithm>

namespace {

const char *const _lights = "KHR_lights_punctual";
const char *const _variants = "KHR_materials_variants";

void replaceAll(qxJson &numbers, const std::unordered_map<int, int> &by)
{
    for (qxJson &number : numbers) {
        const auto found = by.find(number.get<int>());
        if (found != by.end())
            number = found->second;
    }
}

/// Of a clone the state does not say where it stands.
qxGltfPose poseOf(const qxGltfNodeState &state)
{
    const osg::NodeCorePtr core = state.node->getCore();
    const bool isClone = state.sharesCoreOf && !qxGltfIsSwitch(core);
    return isClone ? qxGltfPoseOf(core) : state.pose;
}

} // namespace

qxGltfExporter::qxGltfExporter(qxGltfModel &model, const qxGltfEdited &scene,
                               const qxGltfOrigin &origin, const qxExportOptions &options)
    : m_model(model), m_scene(scene), m_origin(origin), m_options(options),
      m_tidy(options.extent, m_result), m_choice(scene, origin, options.extent, m_result),
      m_materials(model, m_json, m_bin, options, m_result),
      m_meshes(model, m_json, m_bin, options, m_result)
{
}

qxExport qxGltfExporter::make()
{
    findGeometries();
    writeAsset();
    writeMaterials();
    writeNodes();
    nameMaterials();
    writeVariants();
    qxGltfExportClips(m_json, m_bin, m_choice, m_origin).write(m_options.extent, m_result);
    writeScene();
    finish();
    return m_result;
}

void qxGltfExporter::findGeometries()
{
    for (std::size_t i = 0; i < m_scene.state.nodes.size(); ++i) {
        const std::vector<osg::UInt32> &mesh = m_scene.state.nodes[i].mesh;
        for (std::size_t part = 0; part < mesh.size(); ++part)
            m_geometries[{m_choice.meshOf(int(i)), m_choice.partOf(int(i), part)}] = mesh[part];
    }
}

void qxGltfExporter::writeAsset()
{
    const qxJson &from = m_model.document.json["asset"];
    qxJson &asset = m_json["asset"];
    asset = qxGltfDocument::empty().json["asset"];
    const qxJson &copyright = qxGltfMember(from, "copyright");
    if (copyright.is_string())
        asset["copyright"] = copyright;
    for (const QString &name : qxGltfNotUnderstood(m_scene.json, "extensionsUsed"))
        m_tidy.leaveOut(name);
}

void qxGltfExporter::writeMaterials()
{
    if (m_options.extent != qxExportOptions::Everything)
        return;
    for (std::size_t i = 0; i < qxGltfSection(m_scene.json, "materials").size(); ++i)
        m_materials.material(int(i));
}

/// Materials get the names by which they are found, which are unique.
void qxGltfExporter::nameMaterials()
{
    for (const auto &[id, index] : m_origin.materials) {
        const auto material =
            osg::MaterialPtr::dcast(osg::FieldContainerFactory::the()->getContainer(id));
        if (material != osg::NullFC && !qxMaterials::getName(material).empty())
            m_materials.rename(index, qxMaterials::getName(material));
    }
}

void qxGltfExporter::writeNodes()
{
    for (const int position : m_choice.order()) {
        const qxJson written = position < 0 ? qxJson::object() : node(position);
        m_json["nodes"].push_back(written);
    }
    placeUppers();
}

/// What one node cannot express takes a second one above it, which stands behind all others.
void qxGltfExporter::placeUppers()
{
    if (m_uppers.empty())
        return;
    qxJson &nodes = m_json["nodes"];
    std::unordered_map<int, int> above;
    for (const auto &[number, pose] : m_uppers) {
        above[number] = int(nodes.size());
        nodes.push_back(qxJson::object());
        qxGltfWritePose(nodes.back(), pose);
    }
    for (qxJson &node : nodes) {
        if (node.contains("children"))
            replaceAll(node["children"], above);
    }
    for (const auto &[number, upper] : above)
        nodes[std::size_t(upper)]["children"] = {number};
    m_roots = m_choice.roots();
    replaceAll(m_roots, above);
}

qxJson qxGltfExporter::node(int position)
{
    const qxGltfNodeState &state = m_scene.state.nodes[std::size_t(position)];
    const qxJson &from = m_scene.json["nodes"][std::size_t(m_scene.nodes[std::size_t(position)])];
    qxJson node = qxJson::object();
    qxGltfDescribe(node, from, m_tidy);
    const std::vector<qxGltfPose> poses = qxGltfExportPoses(poseOf(state));
    qxGltfWritePose(node, poses.back());
    if (poses.size() > 1)
        m_uppers[m_choice.number(position)] = poses.front();
    if (!m_choice.isBare(position))
        writeContent(node, position);
    const std::vector<int> children = m_choice.children(position);
    if (!children.empty())
        node["children"] = children;
    return node;
}

void qxGltfExporter::writeContent(qxJson &node, int position)
{
    const qxGltfNodeState &state = m_scene.state.nodes[std::size_t(position)];
    const qxJson &from = m_scene.json["nodes"][std::size_t(m_scene.nodes[std::size_t(position)])];
    const std::vector<int> parts = m_choice.parts(position);
    const int mesh = parts.empty() ? -1
                                   : m_meshes.mesh(m_choice.meshOf(position), parts,
                                                   [this](qxJson &primitive, int of, int part) {
                                                       dress(primitive, of, part);
                                                   });
    if (mesh >= 0) {
        node["mesh"] = mesh;
        if (from.contains("weights"))
            node["weights"] = from["weights"];
        const int joints = from.contains("skin") ? skin(from["skin"].get<int>()) : -1;
        if (joints >= 0)
            node["skin"] = joints;
    }
    if (state.light && (state.lightOn || m_options.extent == qxExportOptions::Everything))
        writeLight(node, from);
}

void qxGltfExporter::writeLight(qxJson &node, const qxJson &from)
{
    const int index = qxGltfLightOf(from);
    const auto [known, isNew] = m_lights.try_emplace(index, int(m_lights.size()));
    if (isNew) {
        qxJson light = m_scene.json["extensions"][_lights]["lights"][std::size_t(index)];
        m_tidy.clean(light);
        if (light["type"] == "spot" && !light.contains("spot"))
            light["spot"] = qxJson::object();
        m_json["extensions"][_lights]["lights"].push_back(light);
    }
    node["extensions"][_lights]["light"] = known->second;
}

/// -1 for one whose joints are not all there.
int qxGltfExporter::skin(int index)
{
    const auto [known, isNew] = m_skins.try_emplace(index, -1);
    if (!isNew)
        return known->second;
    const qxJson &from = m_scene.json["skins"][std::size_t(index)];
    qxJson skin = qxJson::object();
    qxGltfDescribe(skin, from, m_tidy);
    for (const qxJson &joint : from["joints"]) {
        const int number = m_choice.numberOf(joint.get<int>());
        if (number < 0) {
            m_result.losses += {"skin", qxGltfLabel("skin", index, from), true,
                                "some of its joints are not in the scene"};
            return -1;
        }
        skin["joints"].push_back(number);
    }
    const int matrices = qxGltfIndex(from, "inverseBindMatrices");
    if (matrices >= 0)
        skin["inverseBindMatrices"] =
            m_bin.addAccessor(qxGltfPacked::of(m_model, matrices), qxGltfBin::Values, false);
    m_json["skins"].push_back(skin);
    return known->second = int(m_json["skins"].size()) - 1;
}

/// The place in the file of a material; -1 for the one of parts without a material.
int qxGltfExporter::materialOf(const osg::MaterialPtr &material) const
{
    if (material == osg::NullFC)
        return -1;
    for (const auto *list : {&m_scene.materials, &m_origin.materials}) {
        const auto known = list->find(material.getFieldContainerId());
        if (known != list->end())
            return known->second;
    }
    return -1;
}

void qxGltfExporter::dress(qxJson &primitive, int mesh, int part)
{
    const auto geometry = m_geometries.find({mesh, part});
    if (geometry == m_geometries.end())
        return;
    const osg::MaterialPtr now =
        qxGltfShownMaterial(m_scene.state.geometries.at(geometry->second)->getMaterial());
    const int shown = m_materials.material(materialOf(now));
    if (shown >= 0)
        primitive["material"] = shown;
    m_result.geometries.insert(geometry->second);
    addMappings(primitive, geometry->second, shown);
}

/// Either none or one for each variant, because programs differ in what they show without.
void qxGltfExporter::addMappings(qxJson &primitive, osg::UInt32 geometry, int shown)
{
    std::map<int, std::vector<int>> variants; // by material
    for (std::size_t i = 0; i < m_options.variants.size(); ++i) {
        const auto &materials = m_options.variants[i].materials;
        const auto worn = materials.find(geometry);
        const int material =
            worn == materials.end() ? shown : m_materials.material(materialOf(worn->second));
        variants[material].push_back(int(i));
    }
    if (variants.empty() || (variants.size() == 1 && variants.begin()->first == shown))
        return;
    m_hasMappings = true;
    for (const auto &[material, chosenBy] : variants) {
        const int named = material < 0 ? m_materials.plainMaterial() : material;
        primitive["extensions"][_variants]["mappings"].push_back(
            {{"material", named}, {"variants", chosenBy}});
    }
}

void qxGltfExporter::writeVariants()
{
    if (!m_hasMappings)
        return;
    for (const qxExportOptions::Variant &variant : m_options.variants)
        m_json["extensions"][_variants]["variants"].push_back({{"name", variant.name}});
}

void qxGltfExporter::writeScene()
{
    const qxJson &scenes = qxGltfSection(m_scene.json, "scenes");
    qxJson scene = qxJson::object();
    const int shown = m_model.sceneIndex();
    if (shown >= 0 && std::size_t(shown) < scenes.size())
        qxGltfDescribe(scene, scenes[std::size_t(shown)], m_tidy);
    qxJson roots = m_uppers.empty() ? qxJson(m_choice.roots()) : m_roots;
    writeCameras(roots);
    if (!roots.empty())
        scene["nodes"] = roots;
    m_json["scene"] = 0;
    m_json["scenes"] = qxJson::array({scene});
    for (std::size_t i = 0; i < scenes.size(); ++i) {
        const qxJson &name = qxGltfMember(scenes[i], "name");
        if (int(i) != shown)
            m_result.losses +=
                {"scene",
                 name.is_string() ? qxText::fromUtf8(name.get_ref<const std::string &>())
                                  : QString::number(i),
                 true, "the program shows another one"};
    }
}

/// The node of the file that a viewpoint came from, with which its camera moves; -1 when it is not
/// there, or the viewpoint no longer as it is.
int qxGltfExporter::cameraNode(int viewpoint) const
{
    if (std::size_t(viewpoint) >= m_origin.viewpoints.size())
        return -1;
    const int from = m_origin.viewpoints[std::size_t(viewpoint)];
    const int number = m_choice.numberOf(from);
    if (number < 0)
        return -1;
    const qxUberCamera &camera = *qxUberCameraPool::the()->get(viewpoint);
    const qxJson &name = qxGltfMember(m_json["nodes"][std::size_t(number)], "name");
    const bool isNamedSo = !name.is_string() || name == "" || name == camera.name;
    const int position = m_choice.order()[std::size_t(number)];
    const osg::NodePtr node = m_scene.state.nodes[std::size_t(position)].node;
    return isNamedSo && node->getToWorld() == camera.toWorld ? number : -1;
}

void qxGltfExporter::writeCameras(qxJson &roots)
{
    for (const int id : m_options.viewpoints) {
        const qxUberCamera *camera = qxUberCameraPool::the()->get(id);
        if (!camera)
            continue;
        if (!qxGltfIsFinite(camera->toWorld)) {
            m_result.losses += {"viewpoint", qxText::fromUtf8(camera->name), true,
                                "its place is beyond all numbers"};
            continue;
        }
        const std::size_t index = qxGltfSection(m_json, "cameras").size();
        m_json["cameras"].push_back(qxGltfCamera(*camera));
        const int node = cameraNode(id);
        if (node >= 0) {
            m_json["nodes"][std::size_t(node)]["camera"] = index;
            continue;
        }
        roots.push_back(qxGltfSection(m_json, "nodes").size());
        qxJson stand = {{"camera", index}};
        const float *matrix = camera->toWorld.getValues();
        qxGltfWritePose(stand,
                        qxGltfExportPoses({qxGltfPose::Matrix, {matrix, matrix + 16}}).front());
        m_json["nodes"].push_back(stand);
    }
}

void qxGltfExporter::finish()
{
    m_bin.finish();
    std::vector<std::string> required;
    if (m_materials.needsWebp())
        required.emplace_back("EXT_texture_webp");
    if (m_meshes.isQuantized())
        required.emplace_back("KHR_mesh_quantization");
    if (m_bin.isCompressed())
        required.emplace_back("EXT_meshopt_compression");
    qxGltfListExtensions(m_json, required);
    const QByteArray text =
        QByteArray::fromStdString(m_json.dump(-1, ' ', false, qxJson::error_handler_t::replace));
    const qxFileContent glb = qxGltfPackBinary(
        qxFileContent(text), m_bin.bytes().isEmpty() ? QByteArray() : m_bin.bytes(), QByteArray());
    m_result.glb.reserve(int(glb.size()));
    glb.giveTo([this](const QByteArray &bytes) {
        m_result.glb += bytes;
        return true;
    });
}
