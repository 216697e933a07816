#pragma once

#include <QString>

#include <vector>

class qxVariantSet;

/// A named, ordered collection of variant sets for the user interface.
///
/// A group does not own its sets. A set is in `sets` exactly when its `group` points here; only the
/// operations of the group change either, so edit `sets` through them. They take no null and
/// announce nothing.
class qxVariantGroup {
public:
    ///@{
    /// The sets as the group holds them.
    typedef std::vector<qxVariantSet *> Sets;
    typedef Sets::iterator iterator;
    typedef Sets::const_iterator const_iterator;
    ///@}

    ///@{
    /// An empty group. One for the registry comes from qxVariants::createVariantGroup.
    qxVariantGroup();
    explicit qxVariantGroup(const QString &groupName);
    ///@}
    qxVariantGroup(const qxVariantGroup &) = delete;
    qxVariantGroup &operator=(const qxVariantGroup &) = delete;
    /// Leaves the sets without a group.
    ~qxVariantGroup();

    /// Appends the set; does nothing when it belongs to a group already, this one or another.
    void add(qxVariantSet *set);
    /// The same for a set that was just created, so that it can be in no group: nobody looks.
    void append(qxVariantSet *set);
    /// Inserts the set before `position` under the same condition.
    void insert(iterator position, qxVariantSet *set);
    /// Takes the set out; does nothing when it belongs to another group or to none.
    void remove(qxVariantSet *set);
    /// Whether `sets` has it; the time grows with the group.
    bool contains(qxVariantSet *set) const;
    ///@{
    /// The place of the set, or the end of `sets`.
    iterator find(qxVariantSet *set);
    const_iterator find(qxVariantSet *set) const;
    ///@}
    /// Takes all sets out; they stay in the registry.
    void clear();

    Sets sets; ///< the members in display order
    QString name; ///< unique among the groups of the registry
    QString comment; ///< free text
    bool visible = true; ///< whether the user interface shows the group

private:
    void link(qxVariantSet *set);
};
