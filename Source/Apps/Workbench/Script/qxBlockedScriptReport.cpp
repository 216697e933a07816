#include "qxBlockedScriptReport.h"

#include "Script/qxScriptRunner.h"
#include "qxController.h"
#include "qxMessage.h"
#include "qxText.h"

#include <cstring>

qxBlockedScriptReport::qxBlockedScriptReport(const Listener &listener)
{
    m_notificationListener =
        qxController::addListener([this](const char *name, qxMessage *message, int) {
            if (!message || strcmp(name, "variantsSetSelected") != 0)
                return;
            if (const auto *set = message->get<std::string>("variantSetName"))
                m_set = qxText::fromUtf8(*set);
        });
    m_scriptListener = qxScriptRunner::addListener([this, listener](const qxScriptText &script) {
        if (!script.isBlocked)
            return;
        const QString text = qxText::fromUtf8(script.text).trimmed();
        listener(m_set, text.section(QLatin1Char('\n'), 0, 0));
    });
}

qxBlockedScriptReport::~qxBlockedScriptReport()
{
    qxScriptRunner::removeListener(m_scriptListener);
    qxController::removeListener(m_notificationListener);
}
