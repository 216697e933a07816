#pragma once

#include "qxMessage.h"

/// One call of the host's controller as a listener received it.
struct Notification {
    std::string name;
    int flag = 0;
    bool hasMessage = false;
    qxMessage message; ///< a copy; empty for a call without message

    /// The keys of the message in the order in which they were set.
    std::vector<std::string> keys() const;
    /// The field as text, see textOf; "(none)" when the message has no such field.
    std::string field(const std::string &key) const;
    /// Name and fields in one line, such as: lightsChanged enabled=[Lamp] parent=Hall
    std::string text() const;
};

/// Names a failed expectation readably.
void PrintTo(const Notification &notification, std::ostream *out);

/// A message value as text: texts as they are, addresses as addressOf gives them, lists of texts as
/// "[a, b]"; "<type>" for anything else.
std::string textOf(const boost::any &value);
/// The text under which an object's address appears in a field.
std::string addressOf(const void *object);

/// Records every call of the controller, from construction to destruction.
class NotificationLog {
public:
    NotificationLog();
    NotificationLog(const NotificationLog &) = delete;
    ~NotificationLog();

    const std::vector<Notification> &entries() const { return m_entries; }
    /// The names of all calls in order.
    std::vector<std::string> names() const;
    /// All calls in order: the flag, the name, the fields.
    std::vector<std::string> lines() const;
    /// The calls of that name in order.
    std::vector<Notification> all(const std::string &name) const;
    void clear() { m_entries.clear(); }

private:
    std::vector<Notification> m_entries;
    int m_listener = 0;
};
