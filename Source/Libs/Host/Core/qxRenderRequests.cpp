#include "Core/qxRenderRequests.h"

#include "Core/qxCallList.h"

namespace {

struct Requests {
    qxCallList<qxRenderRequests::Listener> listeners;
    int count = 0;
};

Requests &requests()
{
    static Requests requests;
    return requests;
}

} // namespace

int qxRenderRequests::addListener(const Listener &listener)
{
    return requests().listeners.add(listener);
}

void qxRenderRequests::removeListener(int id)
{
    requests().listeners.remove(id);
}

void qxRenderRequests::request(bool everything)
{
    ++requests().count;
    requests().listeners.run([everything](const Listener &listener) { listener(everything); });
}

int qxRenderRequests::count()
{
    return requests().count;
}
