#include "qxMessage.h"

qxMessage::qxMessage() {}

qxMessage::qxMessage(unsigned int code) : m_code(code) {}

void qxMessage::set(const std::string &key, const boost::any &value, bool replace)
{
    set(key, boost::any(value), replace);
}

void qxMessage::set(const std::string &key, boost::any &&value, bool replace)
{
    for (Entry &entry : m_entries) {
        if (entry.first != key)
            continue;
        if (replace)
            entry.second = std::move(value);
        return;
    }
    m_entries.emplace_back(key, std::move(value));
}

const boost::any *qxMessage::find(const std::string &key) const
{
    for (const Entry &entry : m_entries) {
        if (entry.first == key)
            return &entry.second;
    }
    return nullptr;
}
