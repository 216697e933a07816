#pragma once

#include "qxNameLookUp.h"

#include <list>
#include <vector>

/// One reference that a set holds: a variant, by name, and the state to select in it.
struct qxVariantState {
    QString variant; ///< the name of the variant, which need not exist
    QString state; ///< an option's name or an action such as "!Toggle"
};

/// The references that a set holds to the variants of one kind, in order, one per variant.
///
/// Entries stay where they are in memory until they are removed, and may be edited in place.
/// Adding, finding and removing cost the same in short and long lists.
class qxStateList {
    typedef std::list<qxVariantState> States;

public:
    ///@{
    /// As containers of the standard library have them.
    typedef States::iterator iterator;
    typedef States::const_iterator const_iterator;
    typedef qxVariantState value_type;
    ///@}

    qxStateList() = default;
    ///@{
    /// Copies the entries; those of the other list stay where they are.
    qxStateList(const qxStateList &other) : m_states(other.m_states) { fillIndex(); }
    qxStateList &operator=(const qxStateList &other);
    ///@}

    ///@{
    /// The entries in the order of adding. Of an empty list there is no front and no back.
    iterator begin() { return m_states.begin(); }
    iterator end() { return m_states.end(); }
    const_iterator begin() const { return m_states.begin(); }
    const_iterator end() const { return m_states.end(); }
    std::size_t size() const { return m_states.size(); }
    bool empty() const { return m_states.empty(); }
    qxVariantState &front() { return m_states.front(); }
    const qxVariantState &front() const { return m_states.front(); }
    qxVariantState &back() { return m_states.back(); }
    const qxVariantState &back() const { return m_states.back(); }
    ///@}

    ///@{
    /// The first entry of that variant, or null. Valid until it is removed.
    qxVariantState *find(const QString &variant);
    const qxVariantState *find(const QString &variant) const;
    ///@}
    /// Gives the variant's entry that state; appends an entry when there is none.
    void add(const QString &variant, const QString &state);
    /// Removes the first entry of that variant, if any.
    void remove(const QString &variant);
    /// Removes all entries.
    void clear();

private:
    void fillIndex();

    States m_states;
    std::vector<iterator> m_places; ///< of the entries; for an empty place whatever was there
    qxNameLookUp m_index;
};
