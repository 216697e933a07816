#pragma once

#include <QList>
#include <QStringList>

class qxVariantSet;

/// One fact about a set: its subject, and its lines.
struct qxSetFact {
    QString title; ///< such as "Node variants"
    QStringList lines;
    bool isCode = false; ///< the lines are the text of a program
};

/// Describes the contents of a set.
namespace qxSetContents {

/// All facts in a fixed order, without hotkey, comment and preview.
QList<qxSetFact> of(const qxVariantSet &set);

} // namespace qxSetContents
