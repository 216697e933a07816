#pragma once

#include "qxDocument.h"

#include <QMap>
#include <QString>

/// A document without its orders: values by paths such as "set/Red/node/Body".
typedef QMap<QString, QString> PlainDocument;

/// The plain form of a settled document.
PlainDocument plain(const qxDocument &document);

/// The three-way merge of plain documents: what only one side changed. Empty, with `isClean` false,
/// when the sides changed the same differently.
PlainDocument plainMerge(const PlainDocument &base, const PlainDocument &ours,
                         const PlainDocument &theirs, bool &isClean);
