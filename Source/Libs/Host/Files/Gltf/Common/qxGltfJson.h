#pragma once

#include "Files/qxFileText.h"

#include <nlohmann/json.hpp>

/// The JSON of a scene file. Members keep their order, so that a file comes back as it was.
typedef nlohmann::ordered_json qxJson;

/// Why a scene file cannot be read or written, in plain words and without the file's name.
class qxGltfError {
public:
    explicit qxGltfError(const QString &reason) : m_reason(reason) {}
    const QString &reason() const { return m_reason; }

private:
    QString m_reason;
};

/// The objects of a top-level list such as "nodes"; an empty list when the file has none.
const qxJson &qxGltfSection(const qxJson &document, const char *name);
/// The member of that name, or null (a JSON null) when `object` is no object or has none.
const qxJson &qxGltfMember(const qxJson &object, const char *name);
/// A non-negative integer member such as an index or a count, -1 when there is none.
/// Only for documents that qxGltfCheck accepted.
int qxGltfIndex(const qxJson &object, const char *name);

/// How messages call an entry of a list: its kind, its number and, when it has one, its name.
QString qxGltfLabel(const char *kind, int index, const qxJson &entry);
/// The same for a primitive of the mesh `index`.
QString qxGltfPrimitiveLabel(int index, const qxJson &mesh, int primitive);
