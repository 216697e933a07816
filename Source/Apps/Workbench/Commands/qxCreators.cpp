#include "qxCreators.h"

#include "qxLightVariantCreator.h"
#include "qxNodeVariantCreator.h"
#include "qxOverlayVariantCreator.h"
#include "qxTransformVariantCreator.h"

#include <OpenSG/OSGGraphOpFactory.h>

qxCreators::qxCreators()
    : m_prototypes{
        std::make_unique<qxNodeVariantCreator>(), std::make_unique<qxLightVariantCreator>(),
        std::make_unique<qxOverlayVariantCreator>(), std::make_unique<qxTransformVariantCreator>()}
{
    for (const auto &prototype : m_prototypes)
        osg::GraphOpFactory::the().registerOp(prototype.get());
}

qxCreators::~qxCreators()
{
    for (const auto &prototype : m_prototypes)
        osg::GraphOpFactory::the().unRegisterOp(prototype.get());
}
