#include "Scene/qxClipping.h"

qxClipping &qxClipping::the()
{
    static qxClipping clipping;
    return clipping;
}
