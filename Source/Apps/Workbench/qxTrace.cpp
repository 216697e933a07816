#include "qxTrace.h"

#include "qxVariants.h"

#include "qxController.h"
#include "qxMessage.h"

#include <QStringList>

#include <cstdio>

namespace {

template <class List>
void findAddress(const List &list, const void *address, const char *kind, QString &result)
{
    for (const auto *item : list) {
        if (static_cast<const void *>(item) == address)
            result = QStringLiteral("%1 \"%2\"").arg(QLatin1String(kind), item->name);
    }
}

/// Says in words which object of the registry a message points to.
QString objectText(const void *address)
{
    QString result = QStringLiteral("object");
    findAddress(qxVariants::_nodeVariants, address, "node variant", result);
    findAddress(qxVariants::_materialVariants, address, "material variant", result);
    findAddress(qxVariants::_lightVariants, address, "light variant", result);
    findAddress(qxVariants::_overlayVariants, address, "overlay variant", result);
    findAddress(qxVariants::_transformVariants, address, "transform variant", result);
    findAddress(qxVariants::_variantSets, address, "set", result);
    findAddress(qxVariants::_variantGroups, address, "group", result);
    return result;
}

QString quoted(const std::string &text)
{
    return QLatin1Char('"') + QString::fromStdString(text) + QLatin1Char('"');
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
            texts += quoted(name.toStdString());
        return listText(texts);
    }
    return QStringLiteral("(%1)").arg(QLatin1String(value.type().name()));
}

void print(const char *name, const qxMessage *message, int flag)
{
    QString line = QStringLiteral("%1 (%2)").arg(QLatin1String(name)).arg(flag);
    if (message) {
        for (const qxMessage::Entry &entry : message->entries())
            line += QStringLiteral(" %1=%2").arg(QString::fromStdString(entry.first),
                                                 valueText(entry.second));
    }
    fprintf(stderr, "%s\n", line.toUtf8().constData());
}

} // namespace

qxTrace::qxTrace() : m_listener(qxController::addListener(print)) {}

qxTrace::~qxTrace()
{
    qxController::removeListener(m_listener);
}
