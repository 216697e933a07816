#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

/// Throws when a member of that name is there, but not an index below `count` into a list of
/// `what`. `owner` begins the message.
void qxGltfCheckIndex(const QString &owner, const qxJson &object, const char *name,
                      const qxJson &list, const char *what);
/// Throws when `value` is not an index below the size of `list`.
void qxGltfCheckIndexValue(const QString &owner, const qxJson &value, const qxJson &list,
                           const char *what);
/// Throws when the member is there, but not a list of exactly `count` finite numbers.
void qxGltfCheckNumbers(const QString &owner, const qxJson &object, const char *name, int count);
/// A non-negative integer member; `fallback` when there is none. Throws when it is something else.
qint64 qxGltfCheckedCount(const QString &owner, const qxJson &object, const char *name,
                          qint64 fallback);
