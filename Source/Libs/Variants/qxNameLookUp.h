#pragma once

#include <QHash>
#include <QString>

#include <vector>

/// Finds the places of a list's objects by their names.
///
/// The names stay where the objects have them, and anybody may change them in any way at any time:
/// nobody tells the index. So it checks each answer against the names as they are, and starts anew
/// when one does not fit. A hit costs the same in short and long lists; a miss looks once at every
/// name, see qxUnchangedNames.
///
/// Places are counted in the order of appending. A place that was left empty is not used again.
class qxNameLookUp {
public:
    static constexpr int None = -1; ///< no place

    /// The place of the object of that name, None when there is none. An empty name is found like
    /// any other. Of several objects it is the first, but for this: in a long list, one that took
    /// the name of a later one goes before that only when the index has noticed, at the latest with
    /// the next look-up of a name that nobody bears (any more).
    int find(const QString &name) const;
    /// The place of just the object whose name stands at this address; None for a stranger.
    int placeOf(const QString *name) const;
    /// Appends an object by the address of its name, which holds until it is removed.
    void append(const QString *name);
    /// Leaves the place empty; at the end places go. The name is not touched: the object may be
    /// gone already.
    void remove(int place);
    /// Forgets all objects; places are counted from 0 again.
    void clear();
    /// To be called by those who let an object take the name of another: all look-ups notice then.
    static void noteRename() { ++s_renames; }

    /// All places, those that were left empty included.
    int places() const { return int(m_entries.size()); }
    /// The places that are taken.
    int count() const { return m_count; }
    /// Whether filling the list anew without its empty places pays.
    bool isSparse() const { return places() > 2 * m_count + ShortList; }

private:
    friend class qxUnchangedNames;
    /// Up to this many names going through them is as fast as asking a hash.
    static constexpr int ShortList = 8;

    struct Entry {
        const QString *name; ///< null: an empty place
        QString known; ///< what the name was when it was entered; shares its text until it changes
    };

    int search(const QString &name) const;
    bool isUpToDate() const;
    void build() const;
    void enter(int place) const;

    mutable std::vector<Entry> m_entries;
    int m_count = 0;
    /// The first place of every name; empty until a long list is asked.
    mutable QHash<QString, int> m_first;
    mutable bool m_hasNamesakes = false;
    mutable quint64 m_checkedDuring = 0; ///< the qxUnchangedNames that saw it up to date
    mutable quint64 m_renames = 0; ///< of s_renames, those that it knows
    static quint64 s_renames;
};

/// While one lives, names change only by operations of the registry: its creator says so.
///
/// Then a name that is not found is believed to be absent once all names were looked at, which
/// keeps work that looks up many absent names linear. What a listener of a notification changes
/// meanwhile is seen by the listener; here it is seen by hits at once, by misses afterwards.
class qxUnchangedNames {
public:
    ///@{
    /// From construction to destruction; one within another is fine.
    qxUnchangedNames();
    ~qxUnchangedNames() { s_current = m_before; }
    ///@}
    qxUnchangedNames(const qxUnchangedNames &) = delete;
    qxUnchangedNames &operator=(const qxUnchangedNames &) = delete;

    /// While one lives, the code of others runs, and nothing is believed.
    class Pause {
    public:
        ///@{
        /// From construction to destruction.
        Pause() : m_before(s_current) { s_current = 0; }
        ~Pause() { s_current = m_before; }
        ///@}
        Pause(const Pause &) = delete;
        Pause &operator=(const Pause &) = delete;

    private:
        quint64 m_before;
    };

private:
    friend class qxNameLookUp;
    static quint64 s_current; ///< 0: none
    quint64 m_before;
};
