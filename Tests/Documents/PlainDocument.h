#pragma once

#include "qxDocument.h"

#include <QMap>
#include <QPair>
#include <QVector>

/// A document without its orders: values by paths such as "set/Red/node/Body".
typedef QMap<QString, QString> PlainDocument;

/// All of a settled document in its order, by such paths.
QVector<QPair<QString, QString>> inOrder(const qxDocument &document);
/// The same without the order.
PlainDocument plain(const qxDocument &document);

/// The three-way merge of plain documents: what only one side changed. Empty, with `isClean` false,
/// when the sides changed the same differently.
PlainDocument plainMerge(const PlainDocument &base, const PlainDocument &ours,
                         const PlainDocument &theirs, bool &isClean);
