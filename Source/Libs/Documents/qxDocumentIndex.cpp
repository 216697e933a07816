#include "qxDocumentIndex.h"

qxDocumentIndex::qxDocumentIndex(const qxDocument &document)
{
    for (const qxDocumentGroup &each : document.groups)
        m_groups.insert(each.name, m_groups.size());
    for (const qxDocumentSet &each : document.sets)
        m_sets.insert(each.name, m_sets.size());
    for (const qxDocumentVariant &each : document.variants)
        m_variants.insert({each.kind, each.name}, m_variants.size());
}
