#include "qxLeftOutScripts.h"

#include "Script/qxScriptRunner.h"
#include "qxController.h"
#include "qxMessage.h"
#include "qxOutput.h"

#include <cstring>

qxLeftOutScripts::qxLeftOutScripts(bool leaveOut) : m_leaveOut(leaveOut)
{
    if (!m_leaveOut)
        return;
    qxScriptRunner::setEnabled(false);
    m_notificationListener =
        qxController::addListener([this](const char *name, qxMessage *message, int) {
            if (!message || strcmp(name, "variantsSetSelected") != 0)
                return;
            if (const auto *set = message->get<std::string>("variantSetName"))
                m_set = QString::fromStdString(*set);
        });
    m_scriptListener = qxScriptRunner::addListener([this](const qxScriptText &script) {
        if (!script.leftOut)
            return;
        const QString text = QString::fromStdString(script.text).trimmed();
        qxOutput::error(QStringLiteral("left out the script of \"%1\": %2")
                            .arg(m_set, text.section(QLatin1Char('\n'), 0, 0)));
    });
}

qxLeftOutScripts::~qxLeftOutScripts()
{
    if (!m_leaveOut)
        return;
    qxScriptRunner::removeListener(m_scriptListener);
    qxController::removeListener(m_notificationListener);
    qxScriptRunner::setEnabled(true);
}
