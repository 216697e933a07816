#include "qxRaytracingManager.h"

qxRaytracingUtils *qxRaytracingManager::getRaytracingUtils()
{
    static qxRaytracingUtils utils;
    return &utils;
}
