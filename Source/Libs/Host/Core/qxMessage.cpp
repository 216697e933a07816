#include "qxMessage.h"

qxMessage::qxMessage() {}

qxMessage::qxMessage(unsigned int code) : m_code(code) {}

void qxMessage::set(const std::string &key, const boost::any &value, bool replace)
{
    for (Entry &entry : m_entries) {
        if (entry.first != key)
            continue;
        if (replace)
            entry.second = value;
        return;
    }
    m_entries.emplace_back(key, value);
}

const boost::any *qxMessage::find(const std::string &key) const
{
    for (const Entry &entry : m_entries) {
        if (entry.first == key)
            return &entry.second;
    }
    return nullptr;
}
