#pragma once

#include <QList>
#include <QStringList>

class qxVariantSet;

/// One fact about a set: what it is about, and its lines.
struct qxSetFact {
    QString title; ///< such as "Node variants"
    QStringList lines;
    bool isCode = false; ///< the lines are the text of a program
};

/// What a set holds, in words.
namespace qxSetContents {

/// What there is, in a fixed order; hotkey, comment and preview are left to the caller.
QList<qxSetFact> of(const qxVariantSet &set);

} // namespace qxSetContents
