#pragma once

#include "Compare/qxDifference.h"
#include "qxDocument.h"

#include <QVector>

/// What differs between two settled documents: nothing if and only if their texts are the same.
///
/// Renamed things are found as qxDocumentPairs does it; names of them in others are no differences.
/// Of a list in another order as few entries as possible are moved. It takes n log n.
struct qxDocumentDiff {
    /// Compares the documents.
    static qxDocumentDiff of(const qxDocument &before, const qxDocument &after);

    /// Whether the texts of the documents are the same.
    bool isEmpty() const { return things.isEmpty(); }

    /// Groups, sets, then variants, each in the order of the later document; what is gone follows
    /// what it followed.
    QVector<qxThingDifference> things;
};
