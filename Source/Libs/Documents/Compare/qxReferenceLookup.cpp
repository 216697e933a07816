#include "Compare/qxReferenceLookup.h"

int qxReferenceLookup::find(const qxVariantKind *kind, const QString &variant)
{
    if (isAt(m_next, kind, variant))
        return int(m_next++);
    if (m_places.isEmpty()) {
        m_places.reserve(int(m_references.size()));
        for (const qxDocumentReference &each : m_references)
            m_places.insert({each.kind, each.variant}, m_places.size());
    }
    const int place = m_places.value({kind, variant}, -1);
    if (place >= 0)
        m_next = std::size_t(place) + 1;
    return place;
}
