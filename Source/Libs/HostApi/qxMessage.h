#pragma once

#include <boost/any.hpp>

#include <string>
#include <utility>
#include <vector>

/// A record of named values, sent with a notification or over the module bus.
///
/// Keys are case-sensitive. Entries keep the order in which their keys were first set, so that a
/// trace shows them in the sender's order.
class qxMessage {
public:
    /// A key and its value.
    typedef std::pair<std::string, boost::any> Entry;

    qxMessage();
    /// A message of the module bus; `code` is its kind (see qxModuleBase).
    explicit qxMessage(unsigned int code);

    /// Stores `value` under `key`. An entry that exists keeps its place; it takes the new value
    /// when `replace` is true and keeps its old one otherwise.
    void set(const std::string &key, const boost::any &value, bool replace = true);
    /// The same without a copy of what `value` holds.
    void set(const std::string &key, boost::any &&value, bool replace = true);

    /// The value under `key`, or null when there is none or when it is not a `T`.
    /// The pointer is valid until the message changes.
    template <class T>
    const T *get(const std::string &key) const;

    /// All entries in the order in which they were first set.
    const std::vector<Entry> &entries() const { return m_entries; }
    /// The code given at construction, 0 for notifications.
    unsigned int code() const { return m_code; }

private:
    const boost::any *find(const std::string &key) const;

    std::vector<Entry> m_entries;
    unsigned int m_code = 0;
};

template <class T>
const T *qxMessage::get(const std::string &key) const
{
    const boost::any *value = find(key);
    return value ? boost::any_cast<T>(value) : nullptr;
}
