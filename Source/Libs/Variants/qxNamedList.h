#pragma once

#include "qxNameLookUp.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <utility>
#include <vector>

/// An ordered sequence of pointers to objects with a `QString name`, with a look-up by name.
///
/// The order is that of appending. Names may be changed directly and need not be unique, see
/// qxNameLookUp. The list does not own the objects: they are taken out before they are deleted.
///
/// Taking an object out leaves its place empty until the list grows again, so that taking out many
/// is linear in total. Who lets others change the list while he goes over it holds a Walk: as long
/// as one lives no object changes its place.
template <class T>
class qxNamedList {
public:
    /// Goes over the objects. It bears that the list changes meanwhile: what is taken out is left
    /// out, and what is appended comes last. See Walk.
    class const_iterator {
    public:
        ///@{
        /// As the standard asks for it; the objects themselves are the values.
        typedef std::forward_iterator_tag iterator_category;
        typedef T *value_type;
        typedef std::ptrdiff_t difference_type;
        typedef T *const *pointer;
        typedef T *reference;
        ///@}

        const_iterator() = default;
        /// At the first taken place from `place` on, or at the end.
        const_iterator(const qxNamedList *list, std::size_t place) : m_list(list), m_place(place)
        {
            skipEmpty();
        }

        /// The object here; null when it was taken out meanwhile.
        T *operator*() const { return m_list->at(m_place); }
        ///@{
        /// To the next object, or to the end.
        const_iterator &operator++()
        {
            ++m_place;
            skipEmpty();
            return *this;
        }
        const_iterator operator++(int) { return std::exchange(*this, std::next(*this)); }
        ///@}
        ///@{
        /// Whether they are at the same place; all places behind the last object are the end.
        bool operator==(const const_iterator &other) const
        {
            return m_place == other.m_place || (isAtEnd() && other.isAtEnd());
        }
        bool operator!=(const const_iterator &other) const { return !(*this == other); }
        ///@}

    private:
        bool isAtEnd() const { return m_place >= m_list->places(); }
        void skipEmpty()
        {
            while (!isAtEnd() && !m_list->at(m_place))
                ++m_place;
        }

        const qxNamedList *m_list = nullptr;
        std::size_t m_place = 0;
    };

    /// Held by whoever goes over the list while others may change it.
    class Walk {
    public:
        ///@{
        /// Keeps every object of the list at its place, from construction to destruction.
        explicit Walk(const qxNamedList &list) : m_list(list) { ++m_list.m_walks; }
        ~Walk() { --m_list.m_walks; }
        ///@}
        Walk(const Walk &) = delete;
        Walk &operator=(const Walk &) = delete;

    private:
        const qxNamedList &m_list;
    };

    qxNamedList() = default;
    qxNamedList(const qxNamedList &) = delete;
    qxNamedList &operator=(const qxNamedList &) = delete;

    ///@{
    /// From the first object to the last.
    const_iterator begin() const { return const_iterator(this, m_emptyInFront); }
    const_iterator end() const { return const_iterator(this, std::size_t(-1)); }
    ///@}
    ///@{
    /// The objects, empty places not counted.
    std::size_t size() const { return std::size_t(m_index.count()); }
    bool empty() const { return size() == 0; }
    ///@}
    /// The object of that number, counted from 0, which must exist. Takes long in a list that
    /// objects were taken out of, until it grows again.
    T *operator[](std::size_t index) const;
    ///@{
    /// The first and the last object; there must be one.
    T *front() const { return *begin(); }
    T *back() const { return m_places.back(); } // no place there is empty
    ///@}

    /// All places, empty ones included.
    std::size_t places() const { return m_places.size(); }
    /// The object at that place; null for an empty one and beyond the last.
    T *at(std::size_t place) const { return place < places() ? m_places[place] : nullptr; }

    /// The first object of that name in list order; null for none and for an empty name.
    T *find(const QString &name) const;
    /// Whether the object is in the list. It must not be deleted, which what leaves the registry is
    /// not before the outermost operation of the module ends.
    bool contains(const T *object) const;
    /// Appends an object that is in no list.
    void append(T *object);
    /// Takes an object of this list out of it.
    void take(T *object);
    /// Takes everything out and returns it in list order.
    std::vector<T *> takeAll();
    /// Puts these objects of the list into that order, and all others behind them. False when they
    /// stood so.
    bool arrange(const std::vector<T *> &order);

private:
    void closePlaces();

    std::vector<T *> m_places;
    qxNameLookUp m_index;
    std::size_t m_emptyInFront = 0; ///< places before the first object
    mutable int m_walks = 0;
};

template <class T>
T *qxNamedList<T>::operator[](std::size_t index) const
{
    const bool isDense = size() == places();
    return isDense ? m_places[index] : *std::next(begin(), std::ptrdiff_t(index));
}

template <class T>
T *qxNamedList<T>::find(const QString &name) const
{
    const int place = name.isEmpty() ? qxNameLookUp::None : m_index.find(name);
    return place == qxNameLookUp::None ? nullptr : m_places[std::size_t(place)];
}

template <class T>
bool qxNamedList<T>::contains(const T *object) const
{
    return m_index.placeOf(&object->name) != qxNameLookUp::None;
}

template <class T>
void qxNamedList<T>::append(T *object)
{
    if (m_index.isSparse() && m_walks == 0)
        closePlaces();
    m_places.push_back(object);
    m_index.append(&object->name);
}

template <class T>
void qxNamedList<T>::take(T *object)
{
    const int place = m_index.placeOf(&object->name);
    m_index.remove(place);
    m_places[std::size_t(place)] = nullptr;
    m_places.resize(std::size_t(m_index.places()));
    while (m_emptyInFront < places() && !m_places[m_emptyInFront])
        ++m_emptyInFront;
    m_emptyInFront = std::min(m_emptyInFront, places());
}

template <class T>
std::vector<T *> qxNamedList<T>::takeAll()
{
    const std::vector<T *> all(begin(), end());
    m_places.clear();
    m_index.clear();
    m_emptyInFront = 0;
    return all;
}

template <class T>
bool qxNamedList<T>::arrange(const std::vector<T *> &order)
{
    if (size() >= order.size() && std::equal(order.begin(), order.end(), begin()))
        return false;
    const std::vector<T *> before = takeAll();
    const std::set<T *> known(order.begin(), order.end());
    for (T *object : order)
        append(object);
    for (T *object : before) {
        if (!known.count(object))
            append(object);
    }
    return true;
}

/// Drops the empty places.
template <class T>
void qxNamedList<T>::closePlaces()
{
    m_emptyInFront = 0;
    m_places.erase(std::remove(m_places.begin(), m_places.end(), nullptr), m_places.end());
    m_index.clear();
    for (T *object : m_places)
        m_index.append(&object->name);
}
