#pragma once

#include "qxTransformService.h"

#include <QObject>

/// Puts nodes of the scene into their named transform states, without a movement in between: a
/// duration is taken as an upper limit.
class qxSceneTransformService : public qxTransformService {
public:
    void selectTransformVariants(const QList<QRPC::NodeTrafoId> &requests, int duration,
                                 int delay) override;

private:
    QObject m_delayed; ///< drops the requests that still wait when the service ends
};
