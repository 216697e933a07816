#pragma once

#include "qxName.h"

#include <QHash>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <vector>

/// An ordered sequence of pointers to objects with a `qxName name`, with a look-up by name.
///
/// The order is that of appending. The look-up costs the same in short and long lists, returns the
/// first object of a name in list order, and follows a name that is assigned directly. Names need
/// not be unique. The list does not own the objects: they are taken out before they are deleted.
///
/// Taking objects out one after the other from the front to the back is linear in total: the list
/// keeps one gap, at the place of the last removal, and closes nothing behind it.
template <class T>
class qxNamedList : private qxNameWatcher {
public:
    /// Goes over the list; valid until the list changes.
    class const_iterator {
    public:
        typedef std::random_access_iterator_tag iterator_category;
        typedef T *value_type;
        typedef std::ptrdiff_t difference_type;
        typedef T *const *pointer;
        typedef T *reference;

        const_iterator() = default;
        const_iterator(const qxNamedList *list, std::size_t index) : m_list(list), m_index(index) {}

        T *operator*() const { return (*m_list)[m_index]; }
        T *operator[](difference_type offset) const { return *(*this + offset); }
        const_iterator &operator++() { return *this += 1; }
        const_iterator &operator--() { return *this += -1; }
        const_iterator operator++(int) { return std::exchange(*this, *this + 1); }
        const_iterator operator--(int) { return std::exchange(*this, *this + -1); }
        const_iterator &operator+=(difference_type offset)
        {
            m_index += std::size_t(offset);
            return *this;
        }
        const_iterator operator+(difference_type offset) const
        {
            return const_iterator(m_list, m_index + std::size_t(offset));
        }
        const_iterator operator-(difference_type offset) const { return *this + -offset; }
        difference_type operator-(const const_iterator &other) const
        {
            return difference_type(m_index) - difference_type(other.m_index);
        }
        bool operator==(const const_iterator &other) const { return m_index == other.m_index; }
        bool operator!=(const const_iterator &other) const { return m_index != other.m_index; }
        bool operator<(const const_iterator &other) const { return m_index < other.m_index; }

    private:
        const qxNamedList *m_list = nullptr;
        std::size_t m_index = 0;
    };

    qxNamedList() = default;
    qxNamedList(const qxNamedList &) = delete;
    qxNamedList &operator=(const qxNamedList &) = delete;

    const_iterator begin() const { return const_iterator(this, 0); }
    const_iterator end() const { return const_iterator(this, size()); }
    std::size_t size() const { return m_entries.size() - m_gapSize; }
    bool empty() const { return size() == 0; }
    T *operator[](std::size_t index) const { return entry(index).object; }
    T *front() const { return (*this)[0]; }
    T *back() const { return (*this)[size() - 1]; }

    /// The first object of that name in list order; null for none and for an empty name.
    T *find(const QString &name) const;
    /// Appends an object that is in no list.
    void append(T *object);
    /// Takes the object at `index` out of the list and returns it.
    T *takeAt(std::size_t index);
    /// Takes the object out of the list; false when the list does not hold it.
    bool take(T *object);
    /// Takes everything out and returns it in list order.
    std::vector<T *> takeAll();

private:
    /// An object and its number in the order of appending.
    struct Entry {
        quint64 number;
        T *object;
    };
    /// The entries of one name, in list order; nearly always just one.
    typedef std::vector<Entry> Namesakes;

    const Entry &entry(std::size_t index) const
    {
        return m_entries[index < m_gap ? index : index + m_gapSize];
    }
    void moveGap(std::size_t index);
    std::size_t indexOf(quint64 number) const;
    void enter(const QString &name, const Entry &entry);
    Entry leave(const QString &name, const qxName *owner);
    void renamed(const qxName &name, const QString &before) override
    {
        enter(name, leave(before, &name));
    }

    /// In list order, with unused places from m_gap on.
    std::vector<Entry> m_entries;
    std::size_t m_gap = 0;
    std::size_t m_gapSize = 0;
    quint64 m_nextNumber = 0;
    /// Every name except the empty one.
    QHash<QString, Namesakes> m_byName;
};
