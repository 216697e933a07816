#include "qxTrace.h"

#include "qxVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

#include "qxController.h"
#include "qxMessage.h"
#include "qxOutput.h"
#include "qxText.h"

#include <QStringList>

namespace {

/// Says in words which object of the registry a message points to.
QString objectText(const void *address)
{
    QString text;
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        if (&variant == address)
            text = QStringLiteral("%1 variant \"%2\"").arg(kind.word, variant.name);
    });
    if (!text.isEmpty())
        return text;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        if (set == address)
            return QStringLiteral("set \"%1\"").arg(set->name);
    }
    for (const qxVariantGroup *group : qxVariants::_variantGroups) {
        if (group == address)
            return QStringLiteral("group \"%1\"").arg(group->name);
    }
    return QStringLiteral("object");
}

QString quoted(const std::string &text)
{
    return QLatin1Char('"') + qxText::fromUtf8(text) + QLatin1Char('"');
}

QString listText(const QStringList &texts)
{
    return QLatin1Char('[') + texts.join(QLatin1String(", ")) + QLatin1Char(']');
}

QString valueText(const boost::any &value)
{
    if (const auto *text = boost::any_cast<std::string>(&value))
        return quoted(*text);
    if (const auto *address = boost::any_cast<void *>(&value))
        return objectText(*address);
    if (const auto *truth = boost::any_cast<bool>(&value))
        return *truth ? QStringLiteral("true") : QStringLiteral("false");
    QStringList texts;
    if (const auto *names = boost::any_cast<std::vector<std::string>>(&value)) {
        for (const std::string &name : *names)
            texts += quoted(name);
        return listText(texts);
    }
    if (const auto *names = boost::any_cast<std::vector<QString>>(&value)) {
        for (const QString &name : *names)
            texts += quoted(qxText::toUtf8(name));
        return listText(texts);
    }
    return QStringLiteral("(%1)").arg(QLatin1String(value.type().name()));
}

void print(const char *name, const qxMessage *message, int flag)
{
    QString line = QStringLiteral("%1 (%2)").arg(QLatin1String(name)).arg(flag);
    if (message) {
        for (const qxMessage::Entry &entry : message->entries())
            line += QStringLiteral(" %1=%2").arg(qxText::fromUtf8(entry.first),
                                                 valueText(entry.second));
    }
    qxOutput::note(line);
}

} // namespace

qxTrace::qxTrace() : m_listener(qxController::addListener(print)) {}

qxTrace::~qxTrace()
{
    qxController::removeListener(m_listener);
}
