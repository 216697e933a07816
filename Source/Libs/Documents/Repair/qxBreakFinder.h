#pragma once

#include "Rename/qxDocumentPlaces.h"
#include "qxDocumentIndex.h"
#include "qxFindCache.h"
#include "qxForecast.h"
#include "qxSceneLookup.h"

/// Tells of the names of a document whether they lead to something, be it in the host's scene or in
/// the document. Neither may change meanwhile.
class qxBreakFinder {
public:
    /// Looks at nothing yet.
    explicit qxBreakFinder(const qxDocument &document) : m_document(document), m_index(document) {}

    /// Whether the name leads to something there. States of variants that have no scene object to
    /// take them count as working.
    bool works(const qxDocumentPlace &place, const QString &name);
    /// Whether it is a default state that is no option.
    bool isNoOption(const qxDocumentPlace &place, const QString &name) const;
    /// The kind of variants that the name alone concerns, because they need more than that there is
    /// something of that name; null for none.
    static const qxVariantKind *needOf(const qxDocumentPlace &place);

private:
    bool hasObject(const qxVariantKind &kind, const QString &base);
    bool takes(const qxDocumentVariant &variant, const QString &state);

    const qxDocument &m_document;
    const qxDocumentIndex m_index;
    const qxSceneLookup m_scene;
    const qxFindCache m_cache{true};
    qxStateSurvey m_survey;
    QHash<QString, bool> m_known; ///< by kind of variant and name of the scene object
};
