#include "Materials/qxMaterialNameService.h"

#include "Materials/qxMaterialNames.h"
#include "qxController.h"
#include "qxMessage.h"

namespace {

const char *const request = "MaterialGetUniqueName";

void reply(qxMessage &message)
{
    if (const auto *wanted = message.get<std::string>("Switch"))
        message.set("newname", qxMaterialNames::current().freeName(*wanted));
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
