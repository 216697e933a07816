#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class QMimeData;
struct qxVariantKind;

/// A state of a variant, by names, as it is dragged.
struct qxDraggedState {
    const qxVariantKind *kind; ///< never null
    QString variant; ///< its name
    QString state; ///< empty for the one that the scene shows
};

/// What docks give each other by drag and drop, within one program.
namespace qxDragData {

///@{
/// States of variants.
void setStates(QMimeData &data, const std::vector<qxDraggedState> &states);
std::vector<qxDraggedState> statesOf(const QMimeData &data);
///@}
///@{
/// Nodes of the scene, by their unique paths (see qxSceneLookup).
void setNodes(QMimeData &data, const QStringList &paths);
QStringList nodesOf(const QMimeData &data);
///@}

} // namespace qxDragData
