#include "qxViewpointEdits.h"

#include "qxCameraService.h"
#include "qxEditStep.h"
#include "qxPanelChanges.h"
#include "qxText.h"

#include <QCoreApplication>
#include <QUndoStack>

#include <algorithm>

namespace {

/// A viewpoint comes or goes.
class ViewpointPresence : public qxEditStep {
public:
    ViewpointPresence(const QString &text, bool comes, int id)
        : qxEditStep(text), m_comes(comes), m_id(id), m_camera(*qxUberCameraPool::the()->get(id))
    {
    }

protected:
    bool perform(bool forward) override
    {
        std::vector<qxUberCamera> viewpoints = qxViewpointEdits::all();
        const auto found =
            std::find_if(viewpoints.begin(), viewpoints.end(),
                         [this](const qxUberCamera &each) { return each.name == m_camera.name; });
        const bool isThere = found != viewpoints.end();
        if (isThere == (m_comes == forward))
            return false;
        if (isThere)
            viewpoints.erase(found);
        else
            viewpoints.insert(viewpoints.begin() + std::min(m_id, int(viewpoints.size())),
                              m_camera);
        qxViewpointEdits::setAll(viewpoints);
        Q_EMIT qxPanelChanges::the().sceneRestored();
        return true;
    }

private:
    bool m_comes;
    int m_id;
    qxUberCamera m_camera;
};

QString text(const char *english)
{
    return QCoreApplication::translate("qxViewpointEdits", english);
}

} // namespace

QString qxViewpointEdits::capture(QUndoStack &steps, const QString &name)
{
    auto *const service = qxKernelServiceFactory::the()->getService<qxCameraService>();
    if (!service)
        return QString();
    const int source = service->getSourceOf(service->getActiveCamera());
    const int id = service->createViewpoint(qxText::toUtf8(name), source);
    const qxUberCamera *const made = qxUberCameraPool::the()->get(id);
    if (!made)
        return QString();
    const QString given = qxText::fromUtf8(made->name);
    auto *const step = new ViewpointPresence(
        text(QT_TRANSLATE_NOOP("qxViewpointEdits", "Capture viewpoint \"%1\"")).arg(given), true,
        id);
    step->markDone();
    steps.push(step);
    Q_EMIT qxPanelChanges::the().sceneRestored();
    return given;
}

bool qxViewpointEdits::remove(QUndoStack &steps, const QString &name)
{
    const int id = qxUberCameraPool::the()->findViewpoint(qxText::toUtf8(name));
    if (id < 0)
        return false;
    steps.push(new ViewpointPresence(
        text(QT_TRANSLATE_NOOP("qxViewpointEdits", "Delete viewpoint \"%1\"")).arg(name), false,
        id));
    return true;
}

std::vector<qxUberCamera> qxViewpointEdits::all()
{
    const qxUberCameraPool &pool = *qxUberCameraPool::the();
    std::vector<qxUberCamera> viewpoints;
    for (int id = 0; id < pool.count(); ++id)
        viewpoints.push_back(*pool.get(id));
    return viewpoints;
}

void qxViewpointEdits::setAll(const std::vector<qxUberCamera> &viewpoints)
{
    qxUberCameraPool::the()->clear();
    for (const qxUberCamera &each : viewpoints)
        qxUberCameraPool::the()->add(each);
}
