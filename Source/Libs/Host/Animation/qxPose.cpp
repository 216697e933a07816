#include "Animation/qxPose.h"

qxPose &qxPose::the()
{
    static qxPose pose;
    return pose;
}
