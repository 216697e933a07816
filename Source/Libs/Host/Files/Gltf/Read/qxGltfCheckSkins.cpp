#include "Files/Gltf/Common/qxGltfCheckValues.h"
#include "Files/Gltf/Read/qxGltfCheck.h"
#include "Files/Gltf/Read/qxGltfElements.h"

namespace {

void checkSkin(const QString &called, const qxJson &skin, const qxJson &document)
{
    const qxJson &joints = qxGltfMember(skin, "joints");
    if (!joints.is_array() || joints.empty())
        throw qxGltfError(qxFileText::tr("%1 has no \"joints\"").arg(called));
    for (const qxJson &joint : joints)
        qxGltfCheckIndexValue(called, joint, qxGltfSection(document, "nodes"), "node");
    qxGltfCheckIndex(called, skin, "inverseBindMatrices", qxGltfSection(document, "accessors"),
                     "accessor");
    const int matrices = qxGltfIndex(skin, "inverseBindMatrices");
    if (matrices < 0)
        return;
    const qxGltfElements elements = qxGltfAccessor::of(document, matrices).elements;
    if (elements.components != 16 || elements.count < qint64(joints.size()))
        throw qxGltfError(qxFileText::tr("%1 has no matrix for each of its %2 joints")
                              .arg(called)
                              .arg(joints.size()));
}

void checkWeights(const QString &called, const qxJson &owner)
{
    const qxJson &weights = qxGltfMember(owner, "weights");
    if (!weights.is_null())
        qxGltfCheckNumbers(called, owner, "weights", int(weights.is_array() ? weights.size() : 0));
}

} // namespace

void qxGltfCheckTargets(const QString &called, const qxJson &primitive, const qxJson &document)
{
    const qxJson &targets = qxGltfMember(primitive, "targets");
    if (!targets.is_null() && !targets.is_array())
        throw qxGltfError(qxFileText::tr("%1: \"%2\" is not a list").arg(called, "targets"));
    for (const qxJson &target : targets) {
        if (!target.is_object())
            throw qxGltfError(qxFileText::tr("%1: \"%2\" holds something that is no object")
                                  .arg(called, "targets"));
        for (const qxJson &accessor : target)
            qxGltfCheckIndexValue(called, accessor, qxGltfSection(document, "accessors"),
                                  "accessor");
    }
}

void qxGltfCheckSkins(const qxJson &document)
{
    int index = 0;
    for (const qxJson &skin : qxGltfSection(document, "skins"))
        checkSkin(qxGltfLabel("skin", index++, skin), skin, document);
    index = 0;
    for (const qxJson &mesh : qxGltfSection(document, "meshes"))
        checkWeights(qxGltfLabel("mesh", index++, mesh), mesh);
    index = 0;
    for (const qxJson &node : qxGltfSection(document, "nodes"))
        checkWeights(qxGltfLabel("node", index++, node), node);
}
