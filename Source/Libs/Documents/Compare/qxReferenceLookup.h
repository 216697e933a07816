#pragma once

#include "qxDocument.h"

#include <QHash>

/// Finds the entries of a set of a settled document by their variants. Who asks for them in the
/// order in which they stand is answered without searching. It refers to the set.
class qxReferenceLookup {
public:
    /// Searches that set.
    explicit qxReferenceLookup(const qxDocumentSet &set) : m_references(set.references) {}
    /// The place of the entry; -1 for none.
    int find(const qxVariantKind *kind, const QString &variant);

private:
    typedef QPair<const qxVariantKind *, QString> Key;

    bool isAt(std::size_t place, const qxVariantKind *kind, const QString &variant) const
    {
        return place < m_references.size() && m_references[place].kind == kind
            && m_references[place].variant == variant;
    }

    const std::vector<qxDocumentReference> &m_references;
    QHash<Key, int> m_places; ///< empty until it is needed
    std::size_t m_next = 0; ///< behind the last one found
};
