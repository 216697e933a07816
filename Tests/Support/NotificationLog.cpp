#include "NotificationLog.h"

#include "qxController.h"

#include <QStringList>

#include <algorithm>
#include <ostream>
#include <sstream>

std::string textOf(const boost::any &value)
{
    if (const auto *const text = boost::any_cast<std::string>(&value))
        return *text;
    if (void *const *object = boost::any_cast<void *>(&value))
        return addressOf(*object);
    QStringList texts;
    if (const auto *const list = boost::any_cast<std::vector<std::string>>(&value)) {
        for (const std::string &entry : *list)
            texts << QString::fromStdString(entry);
    } else if (const auto *const names = boost::any_cast<std::vector<QString>>(&value)) {
        for (const QString &entry : *names)
            texts << entry;
    } else
        return std::string("<") + value.type().name() + ">";
    return "[" + texts.join(", ").toStdString() + "]";
}

std::string addressOf(const void *object)
{
    std::ostringstream stream;
    stream << object;
    return stream.str();
}

std::vector<std::string> Notification::keys() const
{
    std::vector<std::string> keys;
    for (const qxMessage::Entry &entry : message.entries())
        keys.push_back(entry.first);
    return keys;
}

std::string Notification::field(const std::string &key) const
{
    for (const qxMessage::Entry &entry : message.entries()) {
        if (entry.first == key)
            return textOf(entry.second);
    }
    return "(none)";
}

std::string Notification::text() const
{
    std::string line = name;
    for (const qxMessage::Entry &entry : message.entries())
        line += " " + entry.first + "=" + textOf(entry.second);
    return line;
}

void PrintTo(const Notification &notification, std::ostream *out)
{
    *out << notification.text();
}

NotificationLog::NotificationLog()
{
    m_listener = qxController::addListener([this](const char *name, qxMessage *message, int flag) {
        m_entries.push_back({name, flag, message != nullptr, message ? *message : qxMessage()});
    });
}

NotificationLog::~NotificationLog()
{
    qxController::removeListener(m_listener);
}

std::vector<std::string> NotificationLog::names() const
{
    std::vector<std::string> names;
    for (const Notification &entry : m_entries)
        names.push_back(entry.name);
    return names;
}

std::vector<std::string> NotificationLog::lines() const
{
    std::vector<std::string> lines;
    for (const Notification &entry : m_entries)
        lines.push_back(std::to_string(entry.flag) + " " + entry.text());
    return lines;
}

std::vector<Notification> NotificationLog::all(const std::string &name) const
{
    std::vector<Notification> found;
    std::copy_if(m_entries.begin(), m_entries.end(), std::back_inserter(found),
                 [&name](const Notification &entry) { return entry.name == name; });
    return found;
}
