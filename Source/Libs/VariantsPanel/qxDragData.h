#pragma once

#include "qxNodePtr.h"

#include <QString>

#include <vector>

class QMimeData;
struct qxVariantKind;

/// A state of a variant, by names, as it is dragged.
struct qxDraggedState {
    const qxVariantKind *kind; ///< never null
    QString variant; ///< its name
    QString state; ///< empty for the one that the scene shows
};

/// What docks give each other by drag and drop, within one process: data of another one holds
/// nothing.
namespace qxDragData {

///@{
/// States of variants.
void setStates(QMimeData &data, const std::vector<qxDraggedState> &states);
std::vector<qxDraggedState> statesOf(const QMimeData &data);
///@}
///@{
/// Nodes of the scene, by their identifiers; those that are gone meanwhile are left out.
void setNodes(QMimeData &data, const std::vector<qxNodePtr> &nodes);
std::vector<qxNodePtr> nodesOf(const QMimeData &data);
///@}

/// Whether there are states or nodes in it.
bool isKnown(const QMimeData &data);

} // namespace qxDragData
