#pragma once

#include "qxDocument.h"

#include <QHash>

/// Finds things of a settled document by name, each in the same time in every document. It refers
/// to the document, which must neither change nor end before it.
class qxDocumentIndex {
public:
    /// Notes all names of the document.
    explicit qxDocumentIndex(const qxDocument &document);

    ///@{
    /// The place of the thing of that name in the document's list; -1 for none.
    int group(const QString &name) const { return m_groups.value(name, -1); }
    int set(const QString &name) const { return m_sets.value(name, -1); }
    int variant(const qxVariantKind *kind, const QString &name) const
    {
        return m_variants.value({kind, name}, -1);
    }
    ///@}

private:
    QHash<QString, int> m_groups;
    QHash<QString, int> m_sets;
    QHash<QPair<const qxVariantKind *, QString>, int> m_variants;
};
