#pragma once

#include <QSet>
#include <QStringList>

/// Names in the order in which they were added, each of them once.
class qxUniqueNames {
public:
    ///@{
    /// As containers of the standard library have them.
    typedef QStringList::const_iterator const_iterator;
    typedef QString value_type;
    ///@}

    ///@{
    /// The names in their order. The index must be below the size; an empty list has no front.
    const_iterator begin() const { return m_names.begin(); }
    const_iterator end() const { return m_names.end(); }
    std::size_t size() const { return std::size_t(m_names.size()); }
    bool empty() const { return m_names.isEmpty(); }
    const QString &operator[](std::size_t index) const { return m_names.at(int(index)); }
    const QString &front() const { return m_names.first(); }
    const QStringList &list() const { return m_names; }
    ///@}

    /// Compares exactly; an empty name is one like any other.
    bool contains(const QString &name) const;
    /// Appends the name unless it is there already.
    void add(const QString &name);
    /// Removes the name, if it is there.
    void remove(const QString &name);
    /// Removes all names.
    void clear();

private:
    QStringList m_names;
    /// The same names for looking up; empty while there are few.
    QSet<QString> m_index;
};
