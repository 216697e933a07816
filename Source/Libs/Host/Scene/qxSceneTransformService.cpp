#include "Scene/qxSceneTransformService.h"

#include "Scene/qxTransformStates.h"
#include "qxNodeWalk.h"

#include <QTimer>

namespace {

void select(const QList<QRPC::NodeTrafoId> &requests)
{
    for (const QRPC::NodeTrafoId &request : requests)
        qxTransformStates::select(qxNodeWithId(request.first), request.second);
}

} // namespace

qxTransformService::~qxTransformService() = default;

void qxSceneTransformService::selectTransformVariants(const QList<QRPC::NodeTrafoId> &requests, int,
                                                      int delay)
{
    if (delay <= 0)
        select(requests);
    else
        QTimer::singleShot(delay, &m_delayed, [requests] { select(requests); });
}
