#include "qxConnector.h"

qxConnector *qxConnector::the()
{
    static qxConnector connector;
    return &connector;
}
