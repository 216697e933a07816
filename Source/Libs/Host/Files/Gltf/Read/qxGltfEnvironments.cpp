#include "Files/Gltf/Read/qxGltfEnvironments.h"

#include "Files/Gltf/Common/qxGltfExtras.h"
#include "Files/Gltf/Common/qxGltfUri.h"
#include "Files/Gltf/Read/qxGltfModel.h"
#include "Light/qxEnvironmentPicture.h"
#include "Light/qxLightPictureReader.h"

#include <algorithm>

namespace {

const float _mostSteps = 20; ///< of the exposure, in each direction

} // namespace

void qxGltfSetEnvironmentPicture(qxGltfModel &model, int index, const osg::NodePtr &node)
{
    const qxGltfExtras extras(index, model.node(index), model.warnings);
    const std::optional<std::string> uri = extras.text(qxGltfKeys::environmentPicture);
    if (!uri)
        return;
    const qxMemoryBudget before = model.budget;
    try {
        qxEnvironmentPicture picture;
        picture.bytes = qxGltfReadUri(model.document, *uri, model.budget);
        qxLightPictureSize(picture.bytes);
        model.budget.take(picture.bytes.size(), 1); // as a copy in the scene graph
        picture.exposure = std::clamp(extras.number(qxGltfKeys::environmentExposure).value_or(0.0f),
                                      -_mostSteps, _mostSteps);
        picture.rotation = extras.number(qxGltfKeys::environmentRotation).value_or(0.0f);
        picture.attachTo(node);
    } catch (const qxGltfError &error) {
        model.budget = before;
        model.warnings << qxFileText::tr("%1: the picture of the environment is left out: %2")
                              .arg(qxGltfLabel("node", index, model.node(index)), error.reason());
    }
}
