#pragma once

#include "Compare/qxDifference.h"
#include "Compare/qxPairing.h"
#include "qxDocument.h"

#include <functional>

class qxDocumentPairs;

/// Compares things of two documents field by field, and notes what differs.
class qxFieldDiff {
public:
    typedef std::function<QString(int place)> NameOf; ///< gives the name at that place of a list

    /// Notes a text that came, went or became another.
    void text(const char *field, const QString &before, const QString &after,
              const QString &name = QString());
    /// Notes a flag that changed.
    void flag(const char *field, bool before, bool after, const QString &name = QString());
    /// Notes one difference as it is.
    void add(QLatin1String field, qxDifferenceSort sort, const QString &name,
             const QString &before = QString(), const QString &after = QString());
    /// Notes that an entry follows another one than before.
    void moved(QLatin1String field, const QString &name, const NameOf &nameBefore,
               const NameOf &nameAfter, const qxPairedEntry &entry);

    ///@{
    /// Notes what differs of that thing but for its name and its place.
    void group(const qxDocumentGroup &before, const qxDocumentGroup &after);
    void set(const qxDocumentPairs &pairs, const qxDocumentSet &before, const qxDocumentSet &after);
    void variant(const qxDocumentPairs &pairs, const qxDocumentVariant &before,
                 const qxDocumentVariant &after);
    ///@}

    QVector<qxFieldDifference> fields; ///< what was noted so far

private:
    void references(const qxDocumentPairs &pairs, const qxDocumentSet &before,
                    const qxDocumentSet &after);
    void names(QLatin1String word, const std::vector<qxDocumentText> &before,
               const std::vector<qxDocumentText> &after);
    void texts(const char *field, const std::vector<qxDocumentText> &before,
               const std::vector<qxDocumentText> &after);
    void clipping(const qxAnalyzerVariant &before, const qxAnalyzerVariant &after);
};
