#pragma once

#include <QString>

#include <vector>

/// What is in a thing of a document, as a bag of hashes, to find the same thing under another name.
class qxFeatures {
public:
    ///@{
    /// Adds one more feature: a sort of content, told by a tag, and what it is.
    void add(int tag, const QString &text, const QString &more = QString());
    void add(int tag, int number, const QString &more = QString());
    ///@}
    /// In the order in which they were added.
    const std::vector<quint64> &hashes() const { return m_hashes; }

private:
    std::vector<quint64> m_hashes;
};

/// A thing that has no namesake in the other document.
struct qxLikenessThing {
    int place; ///< in the document's list
    int neighbour; ///< the thing with a namesake before it, as the place in the later document
    int turn; ///< of those behind that neighbour the how manieth it is
    qxFeatures features; ///< what is in it
};

/// Two things that are the same one.
struct qxLikenessPair {
    int before; ///< place in the list of the earlier document
    int after; ///< place in the list of the later document
};

/// Pairs things that are renamed: most alike first, and where that is equal, at the same place.
/// Alike are two things of whose features more than half are the same, and two that have none at
/// the same place. Each thing is compared with a few only, so that it takes n log n; of things
/// whose features many others have as well, some pairs may be missed.
namespace qxLikeness {

/// The pairs in the order of the earlier document.
std::vector<qxLikenessPair> pairs(const std::vector<qxLikenessThing> &before,
                                  const std::vector<qxLikenessThing> &after);

} // namespace qxLikeness
