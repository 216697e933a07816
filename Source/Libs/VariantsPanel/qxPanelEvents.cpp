#include "qxPanelEvents.h"

#include "qxVariantKinds.h"

#include "qxController.h"
#include "qxMessage.h"
#include "qxPanelChanges.h"
#include "qxText.h"

#include <QHash>

namespace {

const char *const clearAllVariants = "clearAllVariants";
const char *const variantsSetSelected = "variantsSetSelected";

QStringList namesIn(const qxMessage *message)
{
    const auto *names = message ? message->get<std::vector<QString>>("variant") : nullptr;
    return names ? QStringList(names->begin(), names->end()) : QStringList();
}

} // namespace

qxPanelEvents::qxPanelEvents(QObject *parent) : QObject(parent)
{
    m_listener = qxController::addListener(
        [this](const char *name, qxMessage *message, int) { hear(name, message); });
    const qxPanelChanges *const changes = &qxPanelChanges::the();
    connect(changes, &qxPanelChanges::setsEdited, this, [this] { gather(Sets); });
    connect(changes, &qxPanelChanges::variantsEdited, this, [this] { gather(Variants | States); });
    connect(changes, &qxPanelChanges::sceneRestored, this, [this] { gather(States); });
}

qxPanelEvents::~qxPanelEvents()
{
    qxController::removeListener(m_listener);
}

// A list, not a procedure.
static QHash<QByteArray, int> announcements(int sets, int variants, int states)
{
    QHash<QByteArray, int> table;
    for (const char *event : {"variantSetAdded", "variantSetRemoved", "variantSetChanged",
                              "variantGroupAdded", "variantGroupRemoved", "variantGroupChanged"})
        table.insert(event, sets);
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        const qxVariantNotifications &names = kind->notifications;
        for (const char *event : {names.added, names.removed, names.changed})
            table.insert(event, variants | states);
        if (names.selected)
            table.insert(names.selected, states);
    }
    for (const char *event :
         {"variantsNodesChanged", "variantsMaterialChanged", "variantsLightsChanged",
          "variantsOverlaysChanged", "activateOverlays", "updateMaterials", "variantSetSelected"})
        table.insert(event, states);
    return table;
}

void qxPanelEvents::hear(const QByteArray &name, const qxMessage *message)
{
    static const QHash<QByteArray, int> table = announcements(Sets, Variants, States);
    if (name == clearAllVariants)
        Q_EMIT aboutToForget();
    if (name == variantsSetSelected) {
        const std::string *set = message ? message->get<std::string>("variantSetName") : nullptr;
        m_selected = set ? qxText::fromUtf8(*set) : QString();
        return gather(Selected | States);
    }
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        if (name == kind->notifications.highlight)
            Q_EMIT variantsHighlighted(*kind, namesIn(message));
    }
    gather(table.value(name, Nothing));
}

void qxPanelEvents::gather(int what)
{
    if (what == Nothing)
        return;
    if (m_pending == Nothing)
        QMetaObject::invokeMethod(this, &qxPanelEvents::flush, Qt::QueuedConnection);
    m_pending |= what;
}

void qxPanelEvents::flush()
{
    const int told = m_pending;
    m_pending = Nothing;
    if (told & Sets)
        Q_EMIT setsChanged();
    if (told & Variants)
        Q_EMIT variantsChanged();
    if (told & States)
        Q_EMIT statesChanged();
    if (told & Selected)
        Q_EMIT setSelected(m_selected);
}
