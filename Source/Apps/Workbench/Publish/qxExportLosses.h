#pragma once

#include "qxLossReport.h"

#include <QSet>

#include <unordered_set>

class qxMaterialForecast;
class qxVariantSet;
struct qxExplainedEntry;
struct qxExport;

/// Tells what became of the scene and its sets in an exported file. The scene must still show what
/// the file shows.
class qxExportLosses {
public:
    /// How the file shows a set.
    enum Form {
        Scene, ///< as the state that it is in
        Variant ///< as a variant of materials
    };

    qxExportLosses(const qxExport &file, const qxMaterialForecast &materials);

    /// What belongs to no set.
    void addScene(const qxExport &file);
    /// The entries of a set.
    void addSet(const qxVariantSet &set, Form form);

    const qxLossReport &report() const { return m_report; }

private:
    qxLoss becameOf(const qxExplainedEntry &entry, Form form) const;
    qxLoss variantLoss(const qxExplainedEntry &entry, Form form) const;
    bool isWorn(const QString &material) const;
    void addRest(const qxVariantSet &set);

    std::unordered_set<unsigned int> m_worn; ///< the ids of switch materials in the file
    QSet<QString> m_lostClips;
    QSet<QString> m_lostViewpoints;
    qxLossReport m_report;
};
