#include "Materials/qxMaterialNameService.h"

#include "qxController.h"
#include "qxMaterials.h"
#include "qxMessage.h"

namespace {

const char *const request = "MaterialGetUniqueName";

/// As qxNodeUtils::getUniqueName, but looked up: a scene may have very many materials.
std::string uniqueName(const std::string &base)
{
    std::string name = base;
    for (int number = 2; qxMaterials::findMaterial(name.c_str()) != osg::NullFC; ++number)
        name = base + " " + std::to_string(number);
    return name;
}

void reply(qxMessage &message)
{
    if (const auto *wanted = message.get<std::string>("Switch"))
        message.set("newname", uniqueName(*wanted));
}

} // namespace

qxMaterialNameService::qxMaterialNameService()
{
    qxController::addCB(request, &reply);
}

qxMaterialNameService::~qxMaterialNameService()
{
    qxController::subCB(request, &reply);
}
