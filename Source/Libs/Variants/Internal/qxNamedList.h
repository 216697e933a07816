#pragma once

#include "qxName.h"

#include <QHash>
#include <QVarLengthArray>

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
    /// `object`, or null when it is no longer in the list. It is not touched, so it may be deleted;
    /// `name` is the one that it had.
    T *ifHeld(T *object, const QString &name) const;
    /// Appends an object that is in no list.
    void append(T *object);
    /// Takes the object at `index` out of the list and returns it.
    T *takeAt(std::size_t index);
    /// Takes an object of this list out of it.
    void take(T *object) { takeAt(indexOf(entryOf(object->name, object->name).number)); }
    /// Takes everything out and returns it in list order.
    std::vector<T *> takeAll();

private:
    /// An object and its number in the order of appending.
    struct Entry {
        quint64 number;
        T *object;
    };
    /// The entries of one name, in list order; nearly always just one.
    typedef QVarLengthArray<Entry, 1> Namesakes;

    const Entry &entry(std::size_t index) const
    {
        return m_entries[index < m_gap ? index : index + m_gapSize];
    }
    void moveGap(std::size_t index);
    std::size_t indexOf(quint64 number) const;
    Entry entryOf(const qxName &owner, const QString &text) const;
    void enter(const QString &name, const Entry &entry);
    void forget(const QString &name, quint64 number);
    static typename Namesakes::iterator placeOf(quint64 number, Namesakes &namesakes);
    void renamed(const qxName &name, const QString &before) override;

    /// In list order, with unused places from m_gap on.
    std::vector<Entry> m_entries;
    std::size_t m_gap = 0;
    std::size_t m_gapSize = 0;
    quint64 m_nextNumber = 0;
    /// Every name except the empty one.
    QHash<QString, Namesakes> m_byName;
};

template <class T>
T *qxNamedList<T>::find(const QString &name) const
{
    const auto found = m_byName.constFind(name);
    return found == m_byName.constEnd() || found->empty() ? nullptr : found->front().object;
}

template <class T>
T *qxNamedList<T>::ifHeld(T *object, const QString &name) const
{
    const bool isHeld = find(name) == object || std::find(begin(), end(), object) != end();
    return isHeld ? object : nullptr;
}

template <class T>
void qxNamedList<T>::append(T *object)
{
    moveGap(size());
    m_entries.resize(m_gap);
    m_gapSize = 0;
    if (m_entries.size() == m_entries.capacity())
        m_entries.reserve(2 * m_entries.size() + 8);
    const Entry added{m_nextNumber++, object};
    enter(object->name, added);
    m_entries.push_back(added);
    object->name.setWatcher(this);
}

template <class T>
T *qxNamedList<T>::takeAt(std::size_t index)
{
    const Entry taken = entry(index);
    moveGap(index);
    ++m_gapSize;
    taken.object->name.setWatcher(nullptr);
    forget(taken.object->name, taken.number);
    return taken.object;
}

template <class T>
std::vector<T *> qxNamedList<T>::takeAll()
{
    const std::vector<T *> all(begin(), end());
    m_entries.clear();
    m_byName.clear();
    m_gap = 0;
    m_gapSize = 0;
    for (T *object : all)
        object->name.setWatcher(nullptr);
    return all;
}

/// Makes the unused places begin at `index`.
template <class T>
void qxNamedList<T>::moveGap(std::size_t index)
{
    const auto place = [this](std::size_t at) { return m_entries.begin() + std::ptrdiff_t(at); };
    if (m_gapSize > 0 && index < m_gap)
        std::move_backward(place(index), place(m_gap), place(m_gap + m_gapSize));
    if (m_gapSize > 0 && index > m_gap)
        std::move(place(m_gap + m_gapSize), place(index + m_gapSize), place(m_gap));
    m_gap = index;
}

template <class T>
std::size_t qxNamedList<T>::indexOf(quint64 number) const
{
    std::size_t low = 0;
    std::size_t high = size();
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        if (entry(middle).number < number)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

template <class T>
typename qxNamedList<T>::Entry qxNamedList<T>::entryOf(const qxName &owner,
                                                       const QString &text) const
{
    const auto isOwner = [&owner](const Entry &each) { return &each.object->name == &owner; };
    const auto namesakes = m_byName.constFind(text);
    if (namesakes != m_byName.constEnd())
        return *std::find_if(namesakes->begin(), namesakes->end(), isOwner);
    std::size_t index = 0; // Nameless objects are not in the index.
    while (!isOwner(entry(index)))
        ++index;
    return entry(index);
}

template <class T>
void qxNamedList<T>::enter(const QString &name, const Entry &entry)
{
    if (name.isEmpty())
        return;
    Namesakes &namesakes = m_byName[name];
    namesakes.insert(placeOf(entry.number, namesakes), entry);
}

template <class T>
void qxNamedList<T>::forget(const QString &name, quint64 number)
{
    const auto found = m_byName.find(name);
    if (found == m_byName.end())
        return;
    found->erase(placeOf(number, *found));
    if (found->empty())
        m_byName.erase(found);
}

template <class T>
typename qxNamedList<T>::Namesakes::iterator qxNamedList<T>::placeOf(quint64 number,
                                                                     Namesakes &namesakes)
{
    const auto isBefore = [](const Entry &each, quint64 wanted) { return each.number < wanted; };
    return std::lower_bound(namesakes.begin(), namesakes.end(), number, isBefore);
}

template <class T>
void qxNamedList<T>::renamed(const qxName &name, const QString &before)
{
    const Entry entry = entryOf(name, before);
    forget(before, entry.number);
    enter(name, entry);
}
